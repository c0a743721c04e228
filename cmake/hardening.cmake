# What makes a fault in a released program harder to exploit, and keeps the build machine's paths out of it.
# velmora_hardening is a target to link: the libraries and the programs do, the tests' own code does not, since some
# of it needs the optimiser. Builds with debug information are left as debuggers like them.
include(CheckCXXCompilerFlag)

add_library(velmora_hardening INTERFACE)
set(hardening -D_GLIBCXX_ASSERTIONS -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
  -ffile-prefix-map=${CMAKE_BINARY_DIR}=build -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
if(MINGW)
  # A program may lie anywhere in the whole address space, and data is no code.
  target_link_options(velmora_hardening INTERFACE -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
else()
  list(APPEND hardening -fstack-protector-strong)
  check_cxx_compiler_flag(-fcf-protection VELMORA_HAS_CF_PROTECTION)
  if(VELMORA_HAS_CF_PROTECTION)
    list(APPEND hardening -fcf-protection)
  endif()
  # Every address is bound at the start, and their table is read-only from then on.
  target_link_options(velmora_hardening INTERFACE -Wl,-z,relro,-z,now)
endif()
target_compile_options(velmora_hardening INTERFACE "$<$<CONFIG:Release,MinSizeRel>:${hardening}>")
