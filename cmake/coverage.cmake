# Counts in the built code which of its branches the tests take. velmora_coverage is a target to link: the libraries
# do, the tests' own code does not. What a program counts it writes to LLVM_PROFILE_FILE when it ends, or nowhere.
add_library(velmora_coverage INTERFACE)
if(VELMORA_COVERAGE)
  target_compile_options(velmora_coverage INTERFACE -fprofile-instr-generate=/dev/null -fcoverage-mapping)
  target_link_options(velmora_coverage INTERFACE -fprofile-instr-generate=/dev/null)
endif()
