# What `cmake --install` puts where: the shared objects (component runtime), what a program is built with (development)
# and the command (command). Nothing of it holds a path of the build or of the place where it was installed.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ZELMODEL_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING
    "Where zsh looks for completions, below the prefix; some systems keep those of packages apart")

# The command finds the libraries wherever the whole is put. A package installs where the loader looks anyway, and sets
# CMAKE_SKIP_INSTALL_RPATH.
file(RELATIVE_PATH from_programs /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
set(CMAKE_INSTALL_RPATH $ORIGIN $ORIGIN/${from_programs})

function(zel_install_library target)
    install(TARGETS ${target} EXPORT ZelModelLibTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endfunction()

function(zel_install_headers)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
    file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/model/*.h)
    install(FILES ${headers} ${ZELMODEL_BUILD_INCLUDE}/zelmodel/export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zelmodel COMPONENT development)
    foreach(folder IN LISTS ZELMODEL_MODEL_FOLDERS)
        install(DIRECTORY ${PROJECT_SOURCE_DIR}/model/${folder}
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zelmodel COMPONENT development FILES_MATCHING PATTERN *.h)
    endforeach()
endfunction()

function(zel_install_platform_headers)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/include/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
    install(FILES ${ZELMODEL_BUILD_INCLUDE}/zelplatform/export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zelplatform COMPONENT development)
endfunction()

# The command's manual page and what shells complete behind its name, where each looks for them.
function(zel_install_usage)
    install(FILES ${PROJECT_SOURCE_DIR}/man/zelmodel.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT command)
    set(completions ${PROJECT_SOURCE_DIR}/completions)
    install(FILES ${completions}/zelmodel.bash RENAME zelmodel
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT command)
    install(FILES ${completions}/_zelmodel DESTINATION ${ZELMODEL_ZSH_COMPLETIONS} COMPONENT command)
    install(FILES ${completions}/zelmodel.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT command)
endfunction()

# For programs in other languages that read or write the same documents.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/schemas DESTINATION ${CMAKE_INSTALL_DATADIR}/zelmodellib COMPONENT development)

# The files by which CMake and pkg-config find the library.
function(zel_install_package_files)
    set(ZELMODEL_FIND_PLATFORM "")
    set(ZELMODEL_PC_PLATFORM " -lZelPlatform")
    if(ZELMODEL_PLATFORM)
        set(ZELMODEL_FIND_PLATFORM "find_dependency(${ZELMODEL_PLATFORM} CONFIG)")
        set(ZELMODEL_PC_PLATFORM "")
    endif()
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/ZelModelLib)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/package/ZelModelLibConfig.cmake.in
        ${PROJECT_BINARY_DIR}/package/ZelModelLibConfig.cmake INSTALL_DESTINATION ${folder})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/ZelModelLibConfigVersion.cmake
        COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/package/ZelModelLibConfig.cmake
        ${PROJECT_BINARY_DIR}/package/ZelModelLibConfigVersion.cmake
        DESTINATION ${folder} COMPONENT development)
    install(EXPORT ZelModelLibTargets NAMESPACE ZelModelLib:: DESTINATION ${folder} COMPONENT development)

    file(RELATIVE_PATH ZELMODEL_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" ZELMODEL_PC_PREFIX "${ZELMODEL_PC_PREFIX}")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/package/zelmodellib.pc.in
        ${PROJECT_BINARY_DIR}/package/zelmodellib.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/package/zelmodellib.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()
