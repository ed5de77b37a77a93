# condtree_folder(<folder> [TYPE STATIC|SHARED] SOURCES ... PUBLIC_HEADERS ... HEADERS ... LINK ...)
#
# Makes the target condtree_<folder> of one folder. The folder's headers are reached as <condtree/<folder>/X.h>
# through an include root of its own, so that a target sees the headers of the folders it links and of no others.
# PUBLIC_HEADERS are those that hosts may include: they are installed, and they alone are reachable through
# condtree_public_headers.
add_library(condtree_public_headers INTERFACE)
target_include_directories(condtree_public_headers INTERFACE "${PROJECT_BINARY_DIR}/include/public")

# The toolkit's include root holds all its modules, so that not linking one does not keep its headers out.
# A fence in front of it does: the global header of a module that is not linked is an error.
function(condtree_fence target)
  if(NOT "Qt6::Widgets" IN_LIST ARGN)
    target_include_directories(${target} BEFORE PRIVATE "${PROJECT_SOURCE_DIR}/cmake/fence/widgets")
    if(NOT "Qt6::Gui" IN_LIST ARGN)
      target_include_directories(${target} BEFORE PRIVATE "${PROJECT_SOURCE_DIR}/cmake/fence/gui")
    endif()
  endif()
endfunction()

function(condtree_folder folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "TYPE" "SOURCES;PUBLIC_HEADERS;HEADERS;LINK;PRIVATE_LINK")
  if(NOT arg_TYPE)
    set(arg_TYPE STATIC)
  endif()
  set(target condtree_${folder})
  add_library(${target} ${arg_TYPE} ${arg_SOURCES} ${arg_PUBLIC_HEADERS} ${arg_HEADERS})

  set(root "${PROJECT_BINARY_DIR}/include/${folder}")
  file(MAKE_DIRECTORY "${root}/condtree")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${root}/condtree/${folder}" SYMBOLIC)
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${root}>")
  target_link_libraries(${target} PUBLIC ${arg_LINK} PRIVATE ${arg_PRIVATE_LINK} $<BUILD_INTERFACE:condtree_options>)
  condtree_fence(${target} ${arg_LINK} ${arg_PRIVATE_LINK})

  set(public_root "${PROJECT_BINARY_DIR}/include/public/condtree/${folder}")
  file(MAKE_DIRECTORY "${public_root}")
  foreach(header IN LISTS arg_PUBLIC_HEADERS)
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${header}" "${public_root}/${header}" SYMBOLIC)
    install(FILES "${CMAKE_CURRENT_SOURCE_DIR}/${header}"
      DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/condtree/${folder}" COMPONENT dev)
  endforeach()
  set_property(GLOBAL APPEND PROPERTY CONDTREE_FOLDERS ${folder})
endfunction()

# A shared library that hosts link: named libcondtree-<folder>, exported as CondTree::<folder>.
function(condtree_shared_library target name)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME "${name}" EXPORT_NAME "${ARGV2}"
    VERSION "${PROJECT_VERSION}" SOVERSION "${PROJECT_VERSION_MAJOR}")
  add_library(CondTree::${ARGV2} ALIAS ${target})
  target_include_directories(${target} INTERFACE "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
  install(TARGETS ${target} EXPORT CondTreeTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT dev)
endfunction()
