# The core of Orreva for other programs: find_package(Orreva) and link with Orreva::core.
include("${CMAKE_CURRENT_LIST_DIR}/OrrevaTargets.cmake")
