# The linker of builds that are tested and given to nobody.
option(VELMORA_LLD "Link with LLVM's linker, which takes seconds where the usual one takes minutes" OFF)
if(VELMORA_LLD AND MINGW)
  # GCC for Windows calls its own linker whatever it is told; clang links what GCC has compiled.
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
    OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  cmake_path(GET libgcc PARENT_PATH compiler_libraries)
  set(CMAKE_CXX_LINK_EXECUTABLE "clang++ --target=x86_64-w64-mingw32 -fuse-ld=lld -L${compiler_libraries} \
-L${CMAKE_FIND_ROOT_PATH}/lib <LINK_FLAGS> <OBJECTS> -o <TARGET> <LINK_LIBRARIES> -lpthread")
elseif(VELMORA_LLD)
  add_link_options(-fuse-ld=lld)
endif()
