# Turns the changelog, from this version on back, into `appstream_releases` and `debian_changelog`.

file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md changes)
string(FIND "${changes}" "\n## ${PROJECT_VERSION}, " start)
string(SUBSTRING "${changes}" ${start} -1 changes)

# AppStream: a line for each paragraph and entry, then tags around them.
set(notes "${changes}")
string(REPLACE "&" "&amp;" notes "${notes}")
string(REPLACE "<" "&lt;" notes "${notes}")
string(REGEX REPLACE "([^\n])\n *([^-#\n ])" "\\1 \\2" notes "${notes}")
string(REGEX REPLACE "`([^`]*)`" "<code>\\1</code>" notes "${notes}")
string(REGEX REPLACE "\n([^-#\n][^\n]*)" "\n<p>\\1</p>" notes "${notes}")
string(REGEX REPLACE "((\n- [^\n]*)+)" "\n<ul>\\1\n</ul>" notes "${notes}")
string(REGEX REPLACE "\n- ([^\n]*)" "\n<li>\\1</li>" notes "${notes}")
set(end "</description></release>\n")
string(REGEX REPLACE "\n## ([^\n]*), ([^\n]*)\n+"
  "${end}<release version=\"\\1\" date=\"\\2\"><description>\n" notes "${notes}${end}")
string(LENGTH "${end}" length)
string(SUBSTRING "${notes}" ${length} -1 appstream_releases)

# Debian: entries are indented, and each version ends with a signature.
string(REGEX REPLACE "\n([^#\n])" "\n  \\1" notes "${changes}")
string(REPLACE "\n  - " "\n  * " notes "${notes}")
string(REGEX REPLACE "\n+$" "" notes "${notes}")
set(debian_changelog)
while(notes MATCHES "^\n*## ([^\n]*), ([^\n]*)\n")
  set(version ${CMAKE_MATCH_1})
  execute_process(COMMAND date --utc --rfc-email --date ${CMAKE_MATCH_2}
    OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(LENGTH "${CMAKE_MATCH_0}" length)
  string(SUBSTRING "${notes}" ${length} -1 notes)
  string(FIND "${notes}" "\n## " length)
  string(SUBSTRING "${notes}" 0 ${length} entries)
  string(APPEND debian_changelog
    "korvel (${version}) unstable; urgency=medium\n${entries}\n\n -- ${maintainer}  ${date}\n")
  if(length LESS 0)
    break()
  endif()
  string(SUBSTRING "${notes}" ${length} -1 notes)
  string(APPEND debian_changelog "\n")
endwhile()
