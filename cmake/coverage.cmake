# Counts in the built code which of its branches the tests take; what a program counts it writes to LLVM_PROFILE_FILE
# when it ends, or nowhere. velmora_counts is in everything: of a function in a header the linker may take the tests'
# copy. velmora_coverage, which the libraries link, also says where in the source the counted branches are.
add_library(velmora_counts INTERFACE)
add_library(velmora_coverage INTERFACE)
if(VELMORA_COVERAGE)
  target_compile_options(velmora_counts INTERFACE -fprofile-instr-generate=/dev/null)
  target_link_options(velmora_counts INTERFACE -fprofile-instr-generate=/dev/null)
  # The folder is named so that a cache of the compiler never takes what was built for another checkout.
  target_compile_options(velmora_coverage INTERFACE -fcoverage-mapping
    -fcoverage-compilation-dir=${CMAKE_BINARY_DIR})
endif()
