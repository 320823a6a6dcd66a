# What is installed, and where. The component Development is the core for those who build on it; everything else
# belongs to the programs.
include(CMakePackageConfigHelpers)

# The core: a static library, its headers below include/orreva as they stand below src, and the package Orreva with
# the target Orreva::core.
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Orreva)
set_target_properties(orreva_core PROPERTIES EXPORT_NAME core OUTPUT_NAME orreva)
target_compile_features(orreva_core PUBLIC cxx_std_20)
target_include_directories(orreva_core INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/orreva>)
install(TARGETS orreva_core EXPORT OrrevaTargets ARCHIVE COMPONENT Development)
install(EXPORT OrrevaTargets NAMESPACE Orreva:: DESTINATION ${package} COMPONENT Development)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/generated/OrrevaConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_SOURCE_DIR}/cmake/OrrevaConfig.cmake ${CMAKE_BINARY_DIR}/generated/OrrevaConfigVersion.cmake
  DESTINATION ${package} COMPONENT Development)
foreach(room IN LISTS core_rooms)
  file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${room}/*.h)
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orreva/${room} COMPONENT Development)
endforeach()

if(ORREVA_DESKTOP)
  set(id org.orreva.Orreva)
  set(share ${CMAKE_SOURCE_DIR}/share)
  # Installing is also what registers the types of files with the desktop.
  install(TARGETS orreva orreva-cli)
  install(FILES ${share}/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${share}/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${share}/${id}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ${id}.xml)
  install(FILES ${CMAKE_SOURCE_DIR}/res/icons/orreva.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${id}.svg)
  install(DIRECTORY ${share}/examples DESTINATION ${CMAKE_INSTALL_DATADIR}/orreva)
  install(FILES ${share}/eyepiece.dat DESTINATION ${CMAKE_INSTALL_DATADIR}/orreva)
  install(DIRECTORY ${words_folder}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR})
  install(DIRECTORY ${words_folder}/bash/ DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(DIRECTORY ${words_folder}/zsh/ DESTINATION ${CMAKE_INSTALL_DATADIR}/${ORREVA_ZSH_FOLDER})
endif()
