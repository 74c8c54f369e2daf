# Sources compiled several at a time: most of a small file's time goes into the headers that its
# neighbours read too. The presets for users and for the CI join; `debug` doesn't, so that what is
# changed is all that is compiled, and the static checks see each file by itself.
option(AWIZO_JOIN "Compile the sources of a folder several at a time" ON)

# awizo_joined(RESULT AT_ONCE ROOT sources...): in RESULT the files to compile in place of these, each
# of which includes AT_ONCE of them by their names from ROOT, which must be an include folder: names
# from the root of the disk would hide from the compiler's cache that another copy is the same.
function(awizo_joined result at_once root)
  if(NOT AWIZO_JOIN)
    set(${result} ${ARGN} PARENT_SCOPE)
    return()
  endif()
  set(joined "")
  set(text "")
  set(count 0)
  list(LENGTH ARGN left)
  foreach(source IN LISTS ARGN)
    file(RELATIVE_PATH name "${root}" "${source}")
    string(APPEND text "#include \"${name}\"\n")
    math(EXPR count "${count} + 1")
    math(EXPR left "${left} - 1")
    math(EXPR full "${count} % ${at_once}")
    if(full EQUAL 0 OR left EQUAL 0)
      list(LENGTH joined number)
      set(file "${CMAKE_CURRENT_BINARY_DIR}/joined_${number}.cpp")
      file(CONFIGURE OUTPUT "${file}" CONTENT "${text}" @ONLY)
      list(APPEND joined "${file}")
      set(text "")
    endif()
  endforeach()
  set(${result} ${joined} PARENT_SCOPE)
endfunction()

# awizo_standard_headers(NAME): where sources are joined, a target takes what nearly all include of the
# standard library as it was compiled once; where they aren't, each source shows that it includes what it uses.
# Not for what is linked to Qt, which wants another kind of code.
function(awizo_standard_headers name)
  if(AWIZO_JOIN)
    target_precompile_headers(${name} REUSE_FROM awizo_headers)
  endif()
endfunction()

if(AWIZO_JOIN)
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/headers.cpp" CONTENT "")
  add_library(awizo_headers OBJECT "${PROJECT_BINARY_DIR}/headers.cpp")
  target_link_libraries(awizo_headers PRIVATE awizo_options)
  target_precompile_headers(awizo_headers PRIVATE
    <algorithm> <array> <charconv> <cmath> <cstdint> <functional> <map> <memory> <optional> <set> <span>
    <string> <string_view> <unordered_map> <utility> <variant> <vector>)
endif()
