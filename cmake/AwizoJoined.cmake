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
