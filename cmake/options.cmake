option(ZELMODEL_WERROR "Treat compiler warnings as errors" OFF)
option(ZELMODEL_BUILD_TESTS "Build the tests" ON)
option(ZELMODEL_BUILD_BENCH "Build the benchmarks" OFF)
option(ZELMODEL_BUILD_FUZZ "Build the fuzzer (clang only)" OFF)
option(ZELMODEL_COVERAGE "Instrument for llvm-cov (clang only)" OFF)
set(ZELMODEL_PLATFORM "" CACHE STRING
    "A CMake package of an agent's own that defines ZelModelLib::ZelPlatform; else platform/ is built")
set(ZELMODEL_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")
set(ZELMODEL_TINYXML2_SOURCE "" CACHE PATH "Source of tinyxml2 to build with the project's flags; else the packed library")
