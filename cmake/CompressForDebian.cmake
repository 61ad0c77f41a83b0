# Run by cpack on what it is about to pack: manual pages and change logs are compressed in Debian's
# packages.
file(GLOB files "${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/man?/*"
                "${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*/changelog*")
execute_process(COMMAND gzip -9n ${files} COMMAND_ERROR_IS_FATAL ANY)
