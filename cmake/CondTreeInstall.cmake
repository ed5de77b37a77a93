# What find_package(CondTree) and pkg-config need. The libraries, headers and translations install their own
# rules where they are made. Every path is relative to the prefix, which may be moved.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/CondTree")
install(EXPORT CondTreeTargets NAMESPACE CondTree:: DESTINATION "${package_dir}" COMPONENT dev)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/CondTreeConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/CondTreeConfig.cmake" INSTALL_DESTINATION "${package_dir}")
# Before 1.0 a minor version may break hosts.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/CondTreeConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/CondTreeConfig.cmake" "${PROJECT_BINARY_DIR}/CondTreeConfigVersion.cmake"
  DESTINATION "${package_dir}" COMPONENT dev)

# condtree_pkg_config(<name> <description> REQUIRES ... LIBS ...)
function(condtree_pkg_config name description)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "REQUIRES;LIBS")
  set(pc_name "${name}")
  set(pc_description "${description}")
  list(JOIN arg_REQUIRES ", " pc_requires)
  list(JOIN arg_LIBS " " pc_libs)
  set(pkgconfig_dir "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
  file(RELATIVE_PATH pc_prefix_from_here "${pkgconfig_dir}" "${CMAKE_INSTALL_PREFIX}")
  string(REGEX REPLACE "/$" "" pc_prefix_from_here "${pc_prefix_from_here}")
  file(RELATIVE_PATH pc_libdir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  file(RELATIVE_PATH pc_includedir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
  configure_file("${PROJECT_SOURCE_DIR}/cmake/condtree.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${name}.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT dev)
endfunction()

condtree_pkg_config(condtree-platform "The types that CondTree, its libraries and its hosts exchange"
  REQUIRES "Qt6Core >= 6.4" LIBS -lcondtree-platform)
condtree_pkg_config(condtree-storedprocs "CondTree's data-access library over SQL"
  REQUIRES condtree-platform LIBS -lcondtree-storedprocs)
condtree_pkg_config(condtree "${PROJECT_DESCRIPTION}"
  REQUIRES condtree-platform "Qt6Widgets >= 6.4" LIBS -lcondtree -lcondtree-strmgr)

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/condtree" COMPONENT runtime)
