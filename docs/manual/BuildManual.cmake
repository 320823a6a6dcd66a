# Builds the manual of one LANGUAGE from SOURCE into OUTPUT: the pictures by the COMPANION from the EXAMPLES, then
# each page by CMARK, put into page.html.in with its title, the navigation and the way to the other language.
cmake_minimum_required(VERSION 3.25)

set(from ${SOURCE}/${LANGUAGE})
set(to ${OUTPUT}/${LANGUAGE})
file(REMOVE_RECURSE ${to})
file(MAKE_DIRECTORY ${to}/pictures)
file(COPY ${SOURCE}/manual.css DESTINATION ${to})

# Pictures: name, then the words of the companion's draw. The seed keeps the dots of the Ronchi patterns in place.
set(design ${EXAMPLES}/newton-200-1200.orreva.xml)
set(truss ${EXAMPLES}/truss-400-1800.orreva.xml)
function(draw name size)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
      ${COMPANION} draw ${ARGN} --language ${LANGUAGE} --size ${size} -o ${to}/pictures/${name}.png
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()
draw(section 900x420 ${design} --picture section)
draw(rays 900x420 ${design} --picture section --mode parallel --pointer 0,230)
draw(pointer-rays 900x420 ${design} --picture section --mode pointer --pointer 300,180)
draw(truss 900x420 ${truss} --picture section --box-and-cage)
draw(summary 400x560 ${design} --picture summary)
draw(tube-panel 290x300 ${design} --picture tube-panel)
draw(mirror-panel 290x330 ${design} --picture mirror-panel)
draw(field 620x520 ${design} --picture field)
draw(ronchi 640x680 ${design} --picture ronchi --seed 1)
draw(polygon 400x400 --picture polygon --type 5 --diameter 225 --thickness 6.5)
draw(sector 400x400 --picture sector --type 2 --diameter 100 --value 90)

function(markdown file result)
  execute_process(COMMAND ${CMARK} --unsafe --validate-utf8 ${file} OUTPUT_VARIABLE html COMMAND_ERROR_IS_FATAL ANY)
  set(${result} "${html}" PARENT_SCOPE)
endfunction()

if(LANGUAGE STREQUAL "de")
  set(OTHER en)
  set(OTHER_NAME "English")
  set(MANUAL_NAME "Orreva-Handbuch")
else()
  set(OTHER de)
  set(OTHER_NAME "Deutsch")
  set(MANUAL_NAME "Orreva Manual")
endif()
markdown(${from}/navigation.md links)

file(GLOB_RECURSE pages RELATIVE ${from} ${from}/*.md)
list(REMOVE_ITEM pages navigation.md)
foreach(page IN LISTS pages)
  markdown(${from}/${page} BODY)
  if(NOT BODY MATCHES "<h1>([^<]+)</h1>")
    message(FATAL_ERROR "${LANGUAGE}/${page}: no title")
  endif()
  set(TITLE "${CMAKE_MATCH_1}")
  # The manual's root, seen from the page.
  string(REGEX REPLACE "[^/]+/" "../" ROOT "${page}")
  string(REGEX REPLACE "[^/]+$" "" ROOT "${ROOT}")
  string(REPLACE "href=\"" "href=\"${ROOT}" NAVIGATION "${links}")
  string(REGEX REPLACE "\\.md$" ".html" PAGE "${page}")
  string(REPLACE "ä" "%C3%A4" PAGE_ADDRESS "${PAGE}")
  configure_file(${SOURCE}/page.html.in ${to}/${PAGE} @ONLY)
endforeach()
