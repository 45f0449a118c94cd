# project_library(name): a shared library with export header, alias and soname. Folders add their
# files by target_sources.
include(GenerateExportHeader)

function(project_library name)
    add_library(${name} SHARED)
    add_library(customwidgets::${name} ALIAS ${name})
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:project_flags>)
    generate_export_header(${name} EXPORT_FILE_NAME ${CMAKE_BINARY_DIR}/export/${name}_export.h)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/export>)
endfunction()

# project_folder(library folder): makes the headers of a folder reachable by their bare names.
function(project_folder library folder)
    target_include_directories(${library} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/${folder}>)
endfunction()

# project_embed(library file.tsv function header): compiles a text table into a library.
function(project_embed library file function header)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${function}.cpp)
    add_custom_command(OUTPUT ${source}
        COMMAND ${CMAKE_COMMAND} -DINPUT=${CMAKE_CURRENT_SOURCE_DIR}/${file} -DOUTPUT=${source}
            -DFUNCTION=${function} -DHEADER=${header} -P ${PROJECT_SOURCE_DIR}/cmake/EmbedText.cmake
        DEPENDS ${file} ${PROJECT_SOURCE_DIR}/cmake/EmbedText.cmake
        VERBATIM)
    target_sources(${library} PRIVATE ${source})
endfunction()
