# quorin_add_family(NAME SOURCES ... [LINKS ...])
#
# A family is an object library. It feeds the product, and quorin_engine: a private static library with which tests
# reach internals that are not exported.
define_property(GLOBAL PROPERTY QUORIN_FAMILIES BRIEF_DOCS "Families that the product is linked from")

function(quorin_add_family name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(quorin_${name} OBJECT ${arg_SOURCES})
  target_link_libraries(quorin_${name} PRIVATE quorin_flags ${arg_LINKS})
  set_target_properties(quorin_${name} PROPERTIES
    POSITION_INDEPENDENT_CODE ON C_VISIBILITY_PRESET hidden CXX_VISIBILITY_PRESET hidden)
  set_property(GLOBAL APPEND PROPERTY QUORIN_FAMILIES quorin_${name})
endfunction()

# The objects of all families, for the product and for quorin_engine.
function(quorin_family_objects variable)
  get_property(families GLOBAL PROPERTY QUORIN_FAMILIES)
  list(TRANSFORM families REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>")
  set(${variable} ${families} PARENT_SCOPE)
endfunction()
