include(GoogleTest)
include(emulation)

# Everything the test binaries share: the helpers of tests/support, the folders with documents, the precompiled header.
function(zel_add_test_support)
    file(GLOB sources CONFIGURE_DEPENDS support/*.cpp)
    if(NOT sources)
        file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/support.cpp CONTENT "#include <gtest/gtest.h>\n")
        set(sources ${CMAKE_CURRENT_BINARY_DIR}/support.cpp)
    endif()
    zel_program_path(command zelmodel)
    zel_add_emulation(zelmodel)
    add_library(test_support STATIC ${sources})
    target_include_directories(test_support PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/model)
    target_compile_definitions(test_support PUBLIC
        ZELMODEL_CORPUS_DIR="${CMAKE_CURRENT_SOURCE_DIR}/corpus"
        ZELMODEL_GOLDEN_DIR="${CMAKE_CURRENT_SOURCE_DIR}/golden"
        ZELMODEL_FAULTS_DIR="${CMAKE_CURRENT_SOURCE_DIR}/faults"
        ZELMODEL_EXAMPLES_DIR="${PROJECT_SOURCE_DIR}/examples"
        ZELMODEL_VERSION="${PROJECT_VERSION}"
        ZELMODEL_COMMAND="${command}")
    # The tests themselves are not optimised: they are compiled far longer than they run.
    target_compile_options(test_support PUBLIC -O0)
    # Each answer of the command in JSON is validated: that is work.
    set_source_files_properties(support/answer_schemas.cpp PROPERTIES COMPILE_OPTIONS -O1 SKIP_PRECOMPILE_HEADERS ON)
    # Neither are they instrumented: it is the library and the tools that are watched, and what they do to the heap.
    if(ZELMODEL_SANITIZE MATCHES address)
        target_compile_options(test_support PUBLIC -fno-sanitize=all)
    endif()
    # A sanitizer has functions of memory of its own, which no test may replace.
    if(ZELMODEL_SANITIZE)
        target_compile_definitions(test_support PUBLIC ZELMODEL_TEST_SANITIZED)
    endif()
    target_link_libraries(test_support PUBLIC zelmodel_lib GTest::gtest spdlog::spdlog OpenSSL::Crypto
        tinyxml2::tinyxml2 nlohmann_json::nlohmann_json valijson)
    target_precompile_headers(test_support PRIVATE <gtest/gtest.h>)
    zel_enable_warnings(test_support)
endfunction()

# One binary for a folder: tests/a/b gives a_b_tests. Where processes start slowly, one ctest entry runs it whole. The
# folders with builds of their own, which check threads and memory of keys, have only the parts of the tools they need.
function(zel_add_test_folder folder)
    file(RELATIVE_PATH name ${CMAKE_CURRENT_SOURCE_DIR} ${folder})
    string(REPLACE "/" "_" name ${name}_tests)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE test_support GTest::gtest_main)
    target_precompile_headers(${name} REUSE_FROM test_support)
    set(parts zelmodel_describe zelmodel_logs zelmodel_when zelmodel_picture zelmodel_dump zelmodel_edit
        zelmodel_check zelmodel_schemas zelmodel_usage)
    set(parts_of_threads_tests "")
    set(parts_of_keys_tests zelmodel_dump)
    set(parts_of_proofs_tests test_readers)
    set(parts_of_allocation_tests test_readers)
    set(more_parts_of_docs_tests test_readers)
    set(more_parts_of_schemas_tests test_readers)
    if(DEFINED parts_of_${name})
        set(parts ${parts_of_${name}})
    elseif(TARGET zelmodel)
        add_dependencies(${name} zelmodel)
    endif()
    list(APPEND parts ${more_parts_of_${name}})
    foreach(part IN LISTS parts)
        if(TARGET ${part})
            target_link_libraries(${name} PRIVATE ${part})
        endif()
    endforeach()
    zel_enable_warnings(${name})
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        zel_add_emulation(${name})
        zel_program_path(program ${name})
        add_test(NAME ${name} COMMAND ${program} --gtest_brief=1)
    elseif(ZELMODEL_SANITIZE OR ZELMODEL_COVERAGE)
        add_test(NAME ${name} COMMAND ${name})
    else()
        gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX ${name}.)
    endif()
endfunction()
