# Run by cpack on what it is about to pack: the times of files are that of SOURCE_DATE_EPOCH, if it
# is set, so that the same sources give the same package.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec
    touch --no-dereference --date @$ENV{SOURCE_DATE_EPOCH} {} + COMMAND_ERROR_IS_FATAL ANY)
endif()
