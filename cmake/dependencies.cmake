find_package(Boost 1.81 REQUIRED CONFIG)
find_package(OpenSSL REQUIRED COMPONENTS Crypto)
find_package(tinyxml2 REQUIRED CONFIG)
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
