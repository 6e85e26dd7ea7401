# Checks the dynamic symbol tables of the shared libraries:
#  - the C functions they export (a static library: define), the list c_functions.txt and the functions
#    the public C headers declare are one and the same set;
#  - every C++ symbol they export names an entity of the ryx namespace (for
#    libryx_serialize also its cereal::archive error and cereal::Is), so no
#    cereal, rapidjson, rapidxml or standard library instantiation leaks out;
#  - none is a unique symbol (STB_GNU_UNIQUE), which binds process-wide and
#    keeps a library from unloading.
#
#   cmake -DNM=<nm> -DCC=<C compiler> -DSOURCE_DIR=<project> -DLIST=<c_functions.txt>
#         -DLIBRARIES=<lib.so>,<lib.so>,... -P check_exports.cmake
cmake_minimum_required(VERSION 3.25)

set(problems "")
set(exported "")
string(REPLACE "," ";" libraries "${LIBRARIES}")
foreach(library IN LISTS libraries)
  get_filename_component(name "${library}" NAME)
  set(allowed "3ryx")
  if(name MATCHES "ryx_serialize")
    string(APPEND allowed "|6cereal7archive|6cereal2Is")
  endif()
  # A static library's symbols are those it defines for the program.
  set(table_option -D)
  if(name MATCHES "\\.a$")
    set(table_option --extern-only)
  endif()
  execute_process(COMMAND "${NM}" ${table_option} --defined-only "${library}"
    OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "[^\n]+" lines "${table}")
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^[0-9a-f]* *([A-Za-z]) ([^ ]+)$")
      continue()
    endif()
    set(binding "${CMAKE_MATCH_1}")
    set(symbol "${CMAKE_MATCH_2}")
    # The compiler's own weak helpers in an archive never reach a program's
    # dynamic symbol table.
    if(table_option STREQUAL "--extern-only" AND binding MATCHES "^[VWvw]$")
      continue()
    endif()
    if(binding STREQUAL "u")
      list(APPEND problems "${name}: unique symbol ${symbol}")
    endif()
    if(NOT symbol MATCHES "^_Z")
      list(APPEND exported "${symbol}")
    elseif(NOT symbol MATCHES "^_Z(T[ISVT])?N?[KRO]*(${allowed})")
      list(APPEND problems "${name}: foreign C++ symbol ${symbol}")
    endif()
  endforeach()
endforeach()

file(STRINGS "${LIST}" listed REGEX "^[^#]")

file(GLOB headers "${SOURCE_DIR}/include/ryx/*.h" "${SOURCE_DIR}/include/ryx/object/*.h"
  "${SOURCE_DIR}/platform/*/include/ryx/*.h")
file(GLOB include_dirs LIST_DIRECTORIES true "${SOURCE_DIR}/platform/*/include")
list(TRANSFORM include_dirs PREPEND "-I")
set(declared "")
foreach(header IN LISTS headers)
  # Preprocessed, so that comments and macros cannot pass for declarations.
  execute_process(COMMAND "${CC}" -E -P -std=c99 "-I${SOURCE_DIR}/include" ${include_dirs}
    "${header}" OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "Ryx[A-Za-z0-9_]*[ \t\r\n]*\\(" calls "${text}")
  list(TRANSFORM calls REPLACE "[ \t\r\n]*\\($" "")
  list(APPEND declared ${calls})
endforeach()

foreach(kind IN ITEMS exported listed declared)
  list(REMOVE_DUPLICATES ${kind})
  list(SORT ${kind})
endforeach()
foreach(pair IN ITEMS "exported;listed" "listed;exported" "declared;listed" "listed;declared")
  list(GET pair 0 have)
  list(GET pair 1 want)
  set(missing ${${have}})
  list(REMOVE_ITEM missing ${${want}})
  foreach(symbol IN LISTS missing)
    list(APPEND problems "${symbol} is ${have} but not ${want}")
  endforeach()
endforeach()

if(problems)
  list(JOIN problems "\n  " text)
  message(FATAL_ERROR "exported symbols:\n  ${text}")
endif()
list(LENGTH exported count)
message(STATUS "${count} C functions exported, listed and declared; no foreign C++ symbol")
