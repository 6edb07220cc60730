find_package(Boost 1.81 REQUIRED CONFIG)
if(ZELMODEL_PLATFORM)
    find_package(${ZELMODEL_PLATFORM} REQUIRED CONFIG)
endif()
find_package(OpenSSL REQUIRED COMPONENTS Crypto)
if(NOT ZELMODEL_TINYXML2_SOURCE)
    find_package(tinyxml2 REQUIRED CONFIG)
endif()
find_package(fmt REQUIRED CONFIG)
find_package(spdlog REQUIRED CONFIG)
find_package(CLI11 REQUIRED CONFIG)
find_package(nlohmann_json REQUIRED CONFIG)
find_package(ZLIB REQUIRED)

# Older releases of magic_enum put their header into the include root, newer ones into a folder of its own; both are
# reached as <magic_enum.hpp>.
find_path(MAGIC_ENUM_INCLUDE_DIR NAMES magic_enum.hpp PATH_SUFFIXES magic_enum REQUIRED)
mark_as_advanced(MAGIC_ENUM_INCLUDE_DIR)
add_library(zel_magic_enum INTERFACE)
target_include_directories(zel_magic_enum SYSTEM INTERFACE ${MAGIC_ENUM_INCLUDE_DIR})

if(ZELMODEL_BUILD_TESTS)
    find_package(GTest REQUIRED)
endif()
if(ZELMODEL_BUILD_BENCH)
    find_package(benchmark REQUIRED CONFIG)
endif()

# The packed library is not instrumented: a fuzzer sees nothing of what the parser does.
if(ZELMODEL_TINYXML2_SOURCE)
    if(NOT EXISTS ${ZELMODEL_TINYXML2_SOURCE}/tinyxml2.cpp)
        message(FATAL_ERROR "There is no source of tinyxml2 in ${ZELMODEL_TINYXML2_SOURCE}. "
            "This fetches it: scripts/source_package tinyxml2 ${ZELMODEL_TINYXML2_SOURCE}")
    endif()
    add_library(zel_tinyxml2 STATIC ${ZELMODEL_TINYXML2_SOURCE}/tinyxml2.cpp)
    add_library(tinyxml2::tinyxml2 ALIAS zel_tinyxml2)
    set_target_properties(zel_tinyxml2 PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET default)
    target_include_directories(zel_tinyxml2 SYSTEM PUBLIC ${ZELMODEL_TINYXML2_SOURCE})
endif()
