include(CMakeFindDependencyMacro)
find_dependency(Boost 1.81 CONFIG)
include(${CMAKE_CURRENT_LIST_DIR}/StandInPlatformTargets.cmake)
