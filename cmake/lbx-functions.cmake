# lbx_add_plugin(NAME SOURCE...): a plug-in NAME.so for lbxgen. One of the sources holds LBX_PLUGIN.
function(lbx_add_plugin name)
  add_library(${name} MODULE ${ARGN})
  target_link_libraries(${name} PRIVATE lbx::gnl)
  set_target_properties(${name} PROPERTIES PREFIX "")
endfunction()

# Generates a design at build time.
#
#   lbx_generate(TARGET target
#                PLUGIN plugin                 # a target of lbx_add_plugin, or a file
#                GENERATOR class
#                LANGUAGE verilog|vhdl|qhdl|tcl
#                [PARAMETERS NAME=value...]
#                [OUTPUT_DIRECTORY folder]     # default: the current binary folder
#                [OUTPUT file]                 # default: the target's name with the language's ending
#                [SEPARATE_FILES]              # every subdesign has a file of its own
#                [LBXGEN_OPTIONS option...]    # further options of lbxgen generate
#                [DEPENDS file...]             # what else the generator reads
#                [OUTPUT_VARIABLE variable])   # takes the path of the design's file
#
# The target is part of the default build. It runs lbxgen when the plug-in, lbxgen itself, a file of DEPENDS or the
# command has changed. Its properties: LBX_GENERATED_FILE is the path of the design's file, and LBX_GENERATED_LIST that of a
# list, made by the build, of all files of the design, as lbxgen prints it. The list stands for a generation that went
# well: one that fails takes it away and fails the build. Folders are relative to the current binary folder, files of
# DEPENDS and of PLUGIN to the current source folder.
function(lbx_generate)
  if(NOT TARGET lbx::lbxgen)
    message(FATAL_ERROR "lbx_generate: this package of lbx was built without lbxgen")
  endif()

  # Values are kept in variables of their own, each in brackets when they become code: in a list a ";", a "[" or a "\" at
  # the end would run into the neighbours.
  set(single TARGET PLUGIN GENERATOR LANGUAGE OUTPUT_DIRECTORY OUTPUT OUTPUT_VARIABLE)
  set(keyword "")
  foreach(name IN LISTS single)
    set(arg_${name} "")
  endforeach()
  set(options "")
  set(parameters "")
  set(depends "")
  if(ARGC EQUAL 0)
    message(FATAL_ERROR "lbx_generate: TARGET is missing")
  endif()
  math(EXPR last "${ARGC} - 1")
  foreach(index RANGE ${last})
    set(value "${ARGV${index}}")
    if(value IN_LIST single OR value MATCHES "^(PARAMETERS|LBXGEN_OPTIONS|DEPENDS)$")
      set(keyword "${value}")
    elseif(value STREQUAL "SEPARATE_FILES")
      string(APPEND options " --separate-files")
      set(keyword "")
    elseif(keyword STREQUAL "PARAMETERS")
      string(APPEND parameters " [==[${value}]==]")
    elseif(keyword STREQUAL "LBXGEN_OPTIONS")
      string(APPEND options " [==[${value}]==]")
    elseif(keyword STREQUAL "DEPENDS")
      cmake_path(ABSOLUTE_PATH value BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
      list(APPEND depends "${value}")
    elseif(keyword IN_LIST single)
      set(arg_${keyword} "${value}")
      set(keyword "")
    else()
      message(FATAL_ERROR "lbx_generate: unexpected argument \"${value}\"")
    endif()
  endforeach()
  foreach(name TARGET PLUGIN GENERATOR LANGUAGE)
    if(arg_${name} STREQUAL "")
      message(FATAL_ERROR "lbx_generate: ${name} is missing")
    endif()
  endforeach()

  set(ending_verilog .v)
  set(ending_vhdl .vhd)
  set(ending_qhdl .tdf)
  set(ending_tcl .tcl)
  if(NOT DEFINED ending_${arg_LANGUAGE})
    message(FATAL_ERROR "lbx_generate: LANGUAGE is ${arg_LANGUAGE}, but must be verilog, vhdl, qhdl or tcl")
  endif()
  if(arg_OUTPUT STREQUAL "")
    set(arg_OUTPUT "${arg_TARGET}${ending_${arg_LANGUAGE}}")
  endif()
  cmake_path(ABSOLUTE_PATH arg_OUTPUT_DIRECTORY BASE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" NORMALIZE)
  cmake_path(APPEND arg_OUTPUT_DIRECTORY "${arg_OUTPUT}" OUTPUT_VARIABLE file)

  if(TARGET "${arg_PLUGIN}")
    set(plugin "$<TARGET_FILE:${arg_PLUGIN}>")
    list(APPEND depends "${arg_PLUGIN}")
  else()
    set(plugin "${arg_PLUGIN}")
    cmake_path(ABSOLUTE_PATH plugin BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
  endif()
  list(APPEND depends "${plugin}" "$<TARGET_FILE:lbx::lbxgen>")

  # The list is what the build compares dates with, not the design's file: that one is there after a failure too, and
  # says what was wrong. Plug-ins of the user's environment have no part in a build.
  set(list "${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${arg_TARGET}.generated")
  cmake_language(EVAL CODE "
    add_custom_command(
      OUTPUT [==[${list}]==]
      BYPRODUCTS [==[${file}]==]
      COMMAND \"\${CMAKE_COMMAND}\" -E rm -f [==[${list}]==]
      COMMAND \"\${CMAKE_COMMAND}\" -E make_directory [==[${arg_OUTPUT_DIRECTORY}]==]
      COMMAND \"\${CMAKE_COMMAND}\" -E env --unset=LBX_PLUGIN_PATH [==[$<TARGET_FILE:lbx::lbxgen>]==]
              --plugin [==[${plugin}]==] generate ${options} -l [==[${arg_LANGUAGE}]==] -d [==[${arg_OUTPUT_DIRECTORY}]==]
              -o [==[${arg_OUTPUT}]==] --list-file [==[${list}]==] -- [==[${arg_GENERATOR}]==] ${parameters}
      DEPENDS \${depends}
      COMMENT [==[Generating ${arg_GENERATOR} as ${file}]==]
      VERBATIM)")
  add_custom_target("${arg_TARGET}" ALL DEPENDS "${list}")
  set_target_properties("${arg_TARGET}" PROPERTIES LBX_GENERATED_FILE "${file}" LBX_GENERATED_LIST "${list}")
  if(NOT arg_OUTPUT_VARIABLE STREQUAL "")
    set(${arg_OUTPUT_VARIABLE} "${file}" PARENT_SCOPE)
  endif()
endfunction()
