# Toolchain for another machine of Debian's: s390x, which is big-endian, or aarch64. Libraries and headers come from the
# folder that scripts/sysroot fills, programs run in an emulator.
set(ZELMODEL_MACHINE "" CACHE STRING "The machine to build for, as uname -m says it")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZELMODEL_MACHINE)

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${ZELMODEL_MACHINE})
set(CMAKE_CXX_COMPILER ${ZELMODEL_MACHINE}-linux-gnu-g++)
get_filename_component(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/sysroot/${ZELMODEL_MACHINE} ABSOLUTE)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${ZELMODEL_MACHINE} -L ${CMAKE_SYSROOT})

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
