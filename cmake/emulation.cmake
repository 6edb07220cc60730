# Where programs run in an emulator, none can start another as a file: each has a script of its name that gives it to
# the emulator. The program sees the script as its own name, so that a test which starts itself again starts the script.
# Bounds of time are for real processors: an emulated one says that it is slow.

# zel_program_path(RESULT TARGET): what starts the program.
function(zel_program_path result target)
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(${result} ${PROJECT_BINARY_DIR}/emulated/${target} PARENT_SCOPE)
    else()
        set(${result} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${target} PARENT_SCOPE)
    endif()
endfunction()

function(zel_add_emulation target)
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        zel_program_path(path ${target})
        list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
        file(GENERATE OUTPUT ${path}
            CONTENT "#!/bin/sh\nexec ${emulator} -E ZELMODEL_TEST_SLOWNESS=10 -0 \"$0\" $<TARGET_FILE:${target}> \"$@\"\n"
            FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    endif()
endfunction()
