# Every reader of outside input, as the tests and the fuzzer walk over them.
function(zel_add_readers)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/readers/*.cpp
         ${PROJECT_SOURCE_DIR}/tests/enums/*_cases.cpp)
    add_library(test_readers STATIC ${sources})
    target_include_directories(test_readers PUBLIC ${PROJECT_SOURCE_DIR}/tests PRIVATE ${PROJECT_SOURCE_DIR}/model)
    target_compile_definitions(test_readers PRIVATE
        ZELMODEL_GOLDEN_DIR="${PROJECT_SOURCE_DIR}/tests/golden"
        ZELMODEL_EXAMPLES_DIR="${PROJECT_SOURCE_DIR}/examples")
    target_link_libraries(test_readers PUBLIC zelmodel_lib zelmodel_describe zelmodel_check zelmodel_edit zelmodel_dump
        zelmodel_logs OpenSSL::Crypto ZLIB::ZLIB)
    zel_enable_warnings(test_readers)
endfunction()
