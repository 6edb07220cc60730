# Where results go, and the include path of the build tree: <zelmodel/structs/...> is the folder
# below model/, and each header that stands directly in model/ is <zelmodel/...>.

set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

set(ZELMODEL_MODEL_FOLDERS enums datetime size structs sessions transform)
set(ZELMODEL_BUILD_INCLUDE ${PROJECT_BINARY_DIR}/include)

function(zel_link_model_headers)
    set(root ${ZELMODEL_BUILD_INCLUDE}/zelmodel)
    file(MAKE_DIRECTORY ${root})
    file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/model/*.h)
    set(wanted ${headers})
    foreach(folder IN LISTS ZELMODEL_MODEL_FOLDERS)
        list(APPEND wanted ${PROJECT_SOURCE_DIR}/model/${folder})
    endforeach()

    file(GLOB present ${root}/*)
    foreach(link IN LISTS present)
        if(IS_SYMLINK ${link} AND NOT EXISTS ${link})
            file(REMOVE ${link})
        endif()
    endforeach()
    foreach(target IN LISTS wanted)
        get_filename_component(name ${target} NAME)
        if(NOT IS_SYMLINK ${root}/${name})
            file(CREATE_LINK ${target} ${root}/${name} SYMBOLIC)
        endif()
    endforeach()
endfunction()
