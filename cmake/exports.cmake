# A shared object exports only what its version script names: hidden visibility alone lets type information and
# template instantiations of foreign namespaces through. Its own calls are bound when it is linked: they run faster and
# need no look-up when it is loaded.

include(GenerateExportHeader)

function(zel_limit_exports target script)
    # The binary interface is read from the full debug information.
    target_compile_options(${target} PRIVATE -fno-semantic-interposition $<$<CONFIG:RelWithDebInfo>:-g>)
    target_link_options(${target} PRIVATE -Wl,--version-script=${script} -Wl,-Bsymbolic-functions -Wl,-O1)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()
