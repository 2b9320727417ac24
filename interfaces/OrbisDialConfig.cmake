# For authors of plug-ins: find_package(OrbisDial) gives OrbisDial::orbis_interfaces, the abstract plug-in interfaces and
# the profile records; OrbisDial::hostcore, the host core library with the plug-in container (OrbisDial::hostcorebase is
# the part of it without windows); and OrbisDial::vrks, the device SDK.
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core Widgets)
include(${CMAKE_CURRENT_LIST_DIR}/OrbisDialTargets.cmake)
