# What a program writes about itself, when it is built: nothing of it is kept beside the sources.

# mivo_written(<program target> <file> <argument>...): what the program prints for these arguments, as a file in the
# present folder of the build. As a user with a home and nothing else would see it.
function(mivo_written program file)
  set(written ${CMAKE_CURRENT_BINARY_DIR}/${file})
  add_custom_command(
    OUTPUT ${written}
    COMMAND
      ${CMAKE_COMMAND} -E env --unset=XDG_CONFIG_HOME --unset=XDG_DATA_HOME --unset=STATE_DIRECTORY HOME=/home
      $<TARGET_FILE:${program}> ${ARGN} > ${written}
    DEPENDS ${program}
    COMMENT "Writing ${file}"
    VERBATIM)
  add_custom_target(${program}_${file} ALL DEPENDS ${written})
endfunction()

# mivo_manual(<program target> <name>): the program's man page, installed.
function(mivo_manual program name)
  mivo_written(${program} ${name}.1 --man-page)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()
