# lbx_add_plugin(NAME SOURCE...): a plug-in NAME.so for lbxgen. One of the sources holds LBX_PLUGIN.
function(lbx_add_plugin name)
  add_library(${name} MODULE ${ARGN})
  target_link_libraries(${name} PRIVATE lbx::gnl)
  set_target_properties(${name} PROPERTIES PREFIX "")
endfunction()
