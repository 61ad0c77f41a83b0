# Run by cpack on what it is about to pack: manual pages and change logs are compressed in Debian's
# packages, and the logs have Debian's name.
file(GLOB pages "${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/man?/*")
file(GLOB logs "${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*/CHANGELOG.md")
foreach(log IN LISTS logs)
    get_filename_component(folder "${log}" DIRECTORY)
    file(RENAME "${log}" "${folder}/changelog")
    list(APPEND pages "${folder}/changelog")
endforeach()
execute_process(COMMAND gzip -9n ${pages} COMMAND_ERROR_IS_FATAL ANY)
