# Each room has an include root of its own, so the header of a room that was not declared is not found.

# mivo_module(<room> [HEADERS ...] [SOURCES ...] [USES <room>...]): a room of the embeddable module, installed with it.
function(mivo_module room)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;USES")
  list(TRANSFORM arg_USES PREPEND mivo::)
  mivo_room(mivo ${room} HEADERS ${arg_HEADERS} SOURCES ${arg_SOURCES} LINKS ${arg_USES})
  set_property(GLOBAL APPEND PROPERTY MIVO_MODULE_ROOMS ${room})
  install(TARGETS mivo_${room} EXPORT mivo ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(FILES ${arg_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mivo/${room})
endfunction()

# mivo_room(<house> <room> [NATIVE] [TYPE OBJECT] [HEADERS ...] [SOURCES ...] [LINKS <target>...] [PRIVATE_LINKS <target>...]): target
# <house>::<room>, whose headers are included as "<house>/<room>/Name.h". NATIVE is for what takes something from the
# machine that a page in a browser has not: files, threads, processes, or a library of the system's.
function(mivo_room house room)
  cmake_parse_arguments(PARSE_ARGV 2 arg "NATIVE" "TYPE" "HEADERS;SOURCES;LINKS;PRIVATE_LINKS")
  set(target ${house}_${room})
  set(root ${PROJECT_BINARY_DIR}/rooms/${house}-${room})
  file(MAKE_DIRECTORY ${root}/${house})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${house}/${room} SYMBOLIC)
  if(arg_SOURCES)
    add_library(${target} ${arg_TYPE} ${arg_SOURCES} ${arg_HEADERS})
    target_include_directories(
      ${target} PUBLIC $<BUILD_INTERFACE:${root}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_link_libraries(
      ${target}
      PUBLIC ${arg_LINKS}
      PRIVATE $<BUILD_INTERFACE:mivo_warnings> ${arg_PRIVATE_LINKS})
  else()
    add_library(${target} INTERFACE)
    target_include_directories(
      ${target} INTERFACE $<BUILD_INTERFACE:${root}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_compile_features(${target} INTERFACE cxx_std_20)
    target_link_libraries(${target} INTERFACE ${arg_LINKS})
  endif()
  add_library(${house}::${room} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${room} MIVO_NATIVE ${arg_NATIVE})
endfunction()
