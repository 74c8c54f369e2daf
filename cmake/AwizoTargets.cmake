# How every target of the project is built: one language level, one set of warnings, and for each
# folder one target that compiles all the sources found in it.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

include(AwizoJoined)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# Where tests note the message boxes that they see.
set(AWIZO_SEEN_BOXES "${PROJECT_BINARY_DIR}/seen-boxes.txt")

add_library(awizo_options INTERFACE)
target_compile_options(awizo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  # Clang's -Wconversion holds more than GCC's: what only pages' builds would refuse, no developer sees.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>
  # GCC 12 warns of overlapping and endless copies inside its own std::string when it optimises; there are none.
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict$<SEMICOLON>-Wno-stringop-overflow>
  # GCC counts its own rubbish from 512 MB on (as KB here): a tenth of the time for a tenth of memory.
  $<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=524288>)
if(AWIZO_SANITIZE OR AWIZO_FUZZ)
  # Line numbers are all that a finding needs; the whole of them doubles the time of building.
  set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
endif()
if(AWIZO_SANITIZE)
  target_compile_options(awizo_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(awizo_options INTERFACE -fsanitize=address,undefined)
endif()

if(AWIZO_FUZZ)
  target_compile_options(awizo_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(awizo_options INTERFACE -fsanitize=address,undefined)
endif()

# awizo_module(NAME LINKS targets...): the library of one folder of src/, with the modules that it
# may use. Nothing but the standard library and these may be included there.
function(awizo_module name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  if(sources)
    awizo_joined(compiled 12 "${PROJECT_SOURCE_DIR}/src" ${sources})
    add_library(${name} STATIC ${compiled} ${headers})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE awizo_options)
    awizo_standard_headers(${name})
  else()
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} INTERFACE ${ARG_LINKS})
  endif()
endfunction()

# awizo_outer_library(NAME LINKS ... PRIVATE_LINKS ... ALONE sources...): a library outside src/: an
# adapter, a host's parts, test support. Its headers are named from the root of the project. A source
# that has options of its own is compiled alone.
function(awizo_outer_library name)
  cmake_parse_arguments(ARG "" "" "LINKS;PRIVATE_LINKS;ALONE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  list(TRANSFORM ARG_ALONE PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  if(ARG_ALONE)
    list(REMOVE_ITEM sources ${ARG_ALONE})
  endif()
  awizo_joined(compiled 12 "${PROJECT_SOURCE_DIR}" ${sources})
  add_library(${name} STATIC ${compiled} ${ARG_ALONE} ${headers})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS} awizo_options)
endfunction()

# awizo_quick_to_compile(NAME): code of tests, which run what is optimised but needn't be so themselves:
# it compiles in half the time.
function(awizo_quick_to_compile name)
  target_compile_options(${name} PRIVATE -O0)
  target_link_libraries(${name} PRIVATE GTest::gmock)
  # Qt asks for another kind of code.
  get_target_property(links ${name} LINK_LIBRARIES)
  if("Qt6::Test" IN_LIST links)
    target_precompile_headers(${name} REUSE_FROM awizo_desktop_test_headers)
  else()
    target_precompile_headers(${name} REUSE_FROM awizo_test_headers)
  endif()
endfunction()

# awizo_test(NAME [INVENTED_BOXES] LINKS targets...): the test program of one folder of tests/. The
# message boxes that it sees are noted and compared with the list of the system's messages, unless
# it shows invented ones.
function(awizo_test name)
  cmake_parse_arguments(ARG "INVENTED_BOXES" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  awizo_joined(compiled 24 "${PROJECT_SOURCE_DIR}" ${sources})
  add_executable(${name} ${compiled})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} awizo_test_files GTest::gmock GTest::gtest_main awizo_options)
  awizo_quick_to_compile(${name})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600)
  if(NOT ARG_INVENTED_BOXES)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "AWIZO_SEEN_BOXES=${AWIZO_SEEN_BOXES}")
    set_property(TEST ${name} APPEND PROPERTY FIXTURES_REQUIRED seen_boxes)
    set_property(GLOBAL APPEND PROPERTY awizo_tests_with_boxes ${name})
  endif()
endfunction()
