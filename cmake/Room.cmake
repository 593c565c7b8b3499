# lanterra_room(NAME SOURCES file ... ROOMS room ... LIBRARIES library ...)
#
# One folder under src/ as a static library lanterra_NAME that links exactly the rooms of its row in
# docs/architecture.md. tools/check_rooms.sh holds the same rows against the include lines.
function(lanterra_room name)
    cmake_parse_arguments(arg "" "" "SOURCES;ROOMS;LIBRARIES" ${ARGN})
    add_library(lanterra_${name} STATIC ${arg_SOURCES})
    set_target_properties(lanterra_${name} PROPERTIES AUTOMOC ON)
    list(TRANSFORM arg_ROOMS PREPEND lanterra_)
    target_link_libraries(lanterra_${name} PUBLIC lanterra_common Qt6::Core ${arg_LIBRARIES} ${arg_ROOMS})
endfunction()
