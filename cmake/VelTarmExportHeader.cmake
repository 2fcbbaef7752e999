include(GenerateExportHeader)

# Generated headers lie in folders like those of the sources, and are included and installed in the same way.
set(VELTARM_GENERATED_DIR ${PROJECT_BINARY_DIR}/generated)

# veltarm_export_header(library prefix header): generates the header with the macro <prefix>_EXPORT, which marks what the
# shared library offers. The library's own sources are compiled with <prefix>_LIBRARY, what uses a static library of them
# with <prefix>_STATIC.
function(veltarm_export_header library prefix header)
  set_target_properties(${library} PROPERTIES DEFINE_SYMBOL ${prefix}_LIBRARY)
  generate_export_header(${library} BASE_NAME ${prefix} STATIC_DEFINE ${prefix}_STATIC
                         EXPORT_FILE_NAME ${VELTARM_GENERATED_DIR}/${header})
  target_include_directories(${library} PUBLIC $<BUILD_INTERFACE:${VELTARM_GENERATED_DIR}>)
endfunction()
