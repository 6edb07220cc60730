function(zel_enable_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<BOOL:${ZELMODEL_WERROR}>:-Werror>)
endfunction()
