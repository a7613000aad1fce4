# Writes the manual page of kolta-data from its own --help texts, so the two
# never disagree. Run with -DTOOL=path/to/kolta-data -DOUTPUT=kolta-data.1
# -DVERSION=x.y.z.

function(run_tool out)
  execute_process(COMMAND ${TOOL} ${ARGN} OUTPUT_VARIABLE text RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${TOOL} ${ARGN} failed: ${result}")
  endif()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Text as roff reads it: backslashes doubled, and a line that opens with a
# dot or an apostrophe kept from being taken for a request.
function(roff_escape out text)
  string(REPLACE "\\" "\\e" text "${text}")
  string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" text "${text}")
  string(REGEX REPLACE "\n$" "" text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

run_tool(overview --help)
roff_escape(overview "${overview}")

# The command names are the first word of each line under "Commands:".
string(REGEX MATCH "Commands:\n(  [^\n]+\n)+" command_block "${overview}\n")
string(REGEX MATCHALL "\n  [a-z]+" commands "${command_block}")

set(page ".TH KOLTA-DATA 1 \"\" \"kolta-data ${VERSION}\" \"User Commands\"
.SH NAME
kolta-data \\- read, check and write the data files of a KOLTA game
.SH SYNOPSIS
.B kolta-data
.I COMMAND
[\\fIOPTIONS\\fR] \\fIARGUMENTS\\fR
.SH DESCRIPTION
.nf
${overview}
.fi
.SH COMMANDS
")
foreach(command ${commands})
  string(STRIP "${command}" command)
  run_tool(help ${command} --help)
  roff_escape(help "${help}")
  string(APPEND page ".SS ${command}\n.nf\n${help}\n.fi\n")
endforeach()
file(WRITE ${OUTPUT} "${page}")
