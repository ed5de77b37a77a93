# Language, warnings and instrumentation that every target of the project shares.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CONDTREE_CCACHE ccache)
if(CONDTREE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CONDTREE_CCACHE}")
endif()

# What every target of ours is compiled with; never exported to hosts.
add_library(condtree_options INTERFACE)
target_compile_options(condtree_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<BOOL:${CONDTREE_WERROR}>:-Werror>)
target_compile_definitions(condtree_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)

if(CONDTREE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(CONDTREE_BUILD_FUZZ)
  # The toolkit's own libraries lack what two of the checks need.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr,function
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined -fno-sanitize=vptr,function)
endif()
if(CONDTREE_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
