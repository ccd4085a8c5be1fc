# cmake -DCLI=<lumidate-cli> -DOUTPUT=<file> -P CliCommandsManSection.cmake
#
# Writes a help2man include file with one subsection per command of
# lumidate-cli, holding that command's own --help, so the man page lists
# every option and not only the commands. The commands are the ones the
# program's --help names, so a new command appears without a change here.
execute_process(COMMAND ${CLI} --help OUTPUT_VARIABLE help RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${CLI} --help failed: ${status}")
endif()
string(REGEX MATCHALL "\n  [a-z]+  " command_lines "${help}")

# roff: backslashes are escaped, and a line starting with a dot or an
# apostrophe would be a request.
function(to_roff text out)
  string(REPLACE "\\" "\\e" text "${text}")
  string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

set(section "[COMMANDS]\n")
foreach(line IN LISTS command_lines)
  string(STRIP "${line}" command)
  execute_process(COMMAND ${CLI} ${command} --help OUTPUT_VARIABLE command_help RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${CLI} ${command} --help failed: ${status}")
  endif()
  to_roff("${command_help}" command_help)
  string(APPEND section ".SS \"${command}\"\n.nf\n${command_help}.fi\n")
endforeach()
file(WRITE ${OUTPUT} "${section}")
