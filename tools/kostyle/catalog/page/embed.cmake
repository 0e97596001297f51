# Makes a C++ source that holds the page: the HTML file with style sheet and scripts in it, and with the digests by
# which its security policy lets them, and nothing else, run.
#
# usage: cmake -P embed.cmake OUTPUT.cpp PAGE.html STYLE.css SCRIPT.js...
cmake_minimum_required(VERSION 3.25)

# BASE64_DIGEST(VARIABLE TEXT): the SHA-256 of a text as a security policy has it.
function(base64_digest variable text)
  set(alphabet ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/)
  string(SHA256 digest "${text}")
  set(encoded "")
  foreach(place RANGE 0 60 6)
    string(SUBSTRING "${digest}00" ${place} 6 threeBytes)
    foreach(shift 18 12 6 0)
      math(EXPR index "(0x${threeBytes} >> ${shift}) & 63")
      string(SUBSTRING ${alphabet} ${index} 1 character)
      string(APPEND encoded ${character})
    endforeach()
  endforeach()
  # 32 bytes leave room for one in the last group of three.
  string(SUBSTRING ${encoded} 0 43 encoded)
  set(${variable} "${encoded}=" PARENT_SCOPE)
endfunction()

set(output ${CMAKE_ARGV3})
file(READ ${CMAKE_ARGV4} page)
file(READ ${CMAKE_ARGV5} style)
set(script "\n")
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(argument RANGE 6 ${last})
  file(READ ${CMAKE_ARGV${argument}} text)
  string(APPEND script "${text}")
endforeach()
set(style "\n${style}")
if("${style}${script}" MATCHES "</|<!--")
  message(FATAL_ERROR "What ends or comments out an element stands in the style sheet or a script")
endif()

base64_digest(STYLE_DIGEST "${style}")
base64_digest(SCRIPT_DIGEST "${script}")
set(STYLE "${style}")
set(SCRIPT "${script}")
foreach(part STYLE_DIGEST SCRIPT_DIGEST STYLE SCRIPT)
  string(REPLACE "@${part}@" "${${part}}" page "${page}")
endforeach()

string(FIND "${page}" "@DATA@" place)
string(SUBSTRING "${page}" 0 ${place} before)
math(EXPR place "${place} + 6")
string(SUBSTRING "${page}" ${place} -1 after)

set(source "#include \"catalog/page_template.h\"\n\nnamespace tool {\n")
foreach(part before after)
  string(HEX "${${part}}" bytes)
  string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${bytes}")
  string(APPEND source "\nstatic const char ${part}[] = {${bytes}};\n")
endforeach()
string(APPEND source "
const std::string_view pageBeforeData(before, sizeof before);
const std::string_view pageAfterData(after, sizeof after);

}  // namespace tool
")
file(WRITE ${output} "${source}")
