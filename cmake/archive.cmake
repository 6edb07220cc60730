# What is installed as one archive, for systems that have no packages of ours: cmake --workflow --preset package.
set(CPACK_PACKAGE_NAME zelmodellib)
set(CPACK_PACKAGE_VENDOR "ZelModelLib developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Data model of a backup agent")
set(CPACK_STRIP_FILES ON)
set(CPACK_MONOLITHIC_INSTALL ON)
include(CPack)
