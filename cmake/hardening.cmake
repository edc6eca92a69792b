# What compiler and linker have against a fault of memory, for the build that users get: the program then ends at once, with a copy of the
# sheet on the disk, in place of counting on with what is spoiled. What a compiler does not know is left out.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)

set(FLAGS -fstack-protector-strong -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
if(MINGW)
  list(REMOVE_ITEM FLAGS -fstack-clash-protection)  # g++ 12 for Windows breaks down at it in procedures with large arrays
  add_link_options(-fstack-protector-strong)        # what it and the checked calls need is a library of its own there
endif()
foreach(flag ${FLAGS})
  string(MAKE_C_IDENTIFIER "COMPILER_HAS${flag}" has)
  check_cxx_compiler_flag(${flag} ${has})
  if(${has})
    add_compile_options(${flag})
  endif()
endforeach()

foreach(flag -Wl,-z,relro -Wl,-z,now)
  string(MAKE_C_IDENTIFIER "LINKER_HAS${flag}" has)
  check_linker_flag(CXX ${flag} ${has})
  if(${has})
    add_link_options(${flag})
  endif()
endforeach()

# Programs, and what is linked into them, lie at another place at each start.
check_cxx_compiler_flag(-fPIE COMPILER_HAS_PIE)
check_linker_flag(CXX -pie LINKER_HAS_PIE)
if(COMPILER_HAS_PIE AND LINKER_HAS_PIE)
  add_compile_options($<$<NOT:$<STREQUAL:$<TARGET_PROPERTY:TYPE>,MODULE_LIBRARY>>:-fPIE>)
  add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()

# The bounds of what the library copies and prints: at level 3 as far as they are known at run time. An older library warns of that level.
set(CMAKE_REQUIRED_FLAGS "-O2 -Werror -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
check_cxx_source_compiles("#include <cstring>\nint main() {}" LIBRARY_HAS_FORTIFY_3)
unset(CMAKE_REQUIRED_FLAGS)
add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=$<IF:$<BOOL:${LIBRARY_HAS_FORTIFY_3}>,3,2>)
