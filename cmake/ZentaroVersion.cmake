# Sets ZENTARO_VERSION: the project's version and behind it when the sources were last changed (UTC),
# so that the packages of later sources are newer. Sources without their history that were not exported
# from it either (git archive fills in the time) have the project's version alone.
set(changed "$Format:%ct$")
if(NOT changed MATCHES "^[0-9]+$")
    execute_process(
        COMMAND git -c safe.directory=* -C "${PROJECT_SOURCE_DIR}" log -1 --format=%ct
        OUTPUT_VARIABLE changed OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
set(ZENTARO_VERSION "${PROJECT_VERSION}")
set(ZENTARO_CHANGED "Thu, 01 Jan 1970 00:00:00 +0000")
if(changed MATCHES "^[0-9]+$")
    set(ENV{SOURCE_DATE_EPOCH} "${changed}") # the time that is written next
    string(TIMESTAMP changed "%Y%m%d.%H%M%S" UTC)
    string(TIMESTAMP ZENTARO_CHANGED "%a, %d %b %Y %H:%M:%S +0000" UTC)
    string(APPEND ZENTARO_VERSION "+${changed}")
endif()
