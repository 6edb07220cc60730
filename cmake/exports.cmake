# A shared object exports only what its version script names: hidden visibility alone lets type information and
# template instantiations of foreign namespaces through.

include(GenerateExportHeader)

function(zel_limit_exports target script)
    target_link_options(${target} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()
