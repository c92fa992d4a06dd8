# Runs COMMAND, a list, and fails unless it ends with the exit status STATUS.
execute_process(COMMAND ${COMMAND} RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT status EQUAL STATUS)
  message(FATAL_ERROR "exit status ${status} instead of ${STATUS}:\n${said}")
endif()
