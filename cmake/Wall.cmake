# wall_off(target folders...): no source of the target can include a header of these folders of the compiler's own
# include path. In front of each stands one of the same name that fails.
function(wall_off target)
  set(wall ${PROJECT_BINARY_DIR}/wall)
  foreach(root ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES} /usr/include)
    foreach(folder ${ARGN})
      file(GLOB_RECURSE headers RELATIVE ${root} ${root}/${folder}/*.h)
      foreach(header ${headers})
        file(CONFIGURE OUTPUT ${wall}/${header} CONTENT "#error \"${target} knows the standard library alone\"\n")
      endforeach()
    endforeach()
  endforeach()
  target_include_directories(${target} BEFORE PRIVATE ${wall})
endfunction()
