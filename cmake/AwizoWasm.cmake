# awizo_wasm_program(NAME LIBRARY): in the build folder NAME.wasm, whose way in the library exports.
function(awizo_wasm_program name library)
  set(libraries "$ENV{AWIZO_WASM_LIBRARIES}")
  file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/empty.cpp" CONTENT "")
  add_executable(${name}-wasm "${CMAKE_CURRENT_BINARY_DIR}/empty.cpp")
  target_link_libraries(${name}-wasm PRIVATE
    "-Wl,--whole-archive" ${library} "-Wl,--no-whole-archive"
    "${libraries}/lib/unwind.o" "${libraries}/lib/stack_guard.o" -lc++ -lc++abi)
  # The whole is optimised when it is linked, where the compiler's own option for exceptions counts no more:
  # without these two nothing would ever be caught.
  target_link_options(${name}-wasm PRIVATE
    "-Wl,-mllvm,-wasm-enable-eh,-mllvm,-exception-model=wasm"
    -mexec-model=reactor -nostdlib++ "-L${libraries}/lib" -fwasm-exceptions
    "-Wl,-z,stack-size=4194304,--strip-all")
  set_target_properties(${name}-wasm PROPERTIES
    OUTPUT_NAME ${name} SUFFIX .wasm RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")
endfunction()
