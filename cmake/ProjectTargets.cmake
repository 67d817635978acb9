# The options of all targets of the project, and add_ide_plugin(), which adds a plugin of the IDE.

option(WARNINGS_AS_ERRORS "Treat warnings of the project's own code as errors" OFF)
set(SANITIZE "" CACHE STRING "Sanitizers to build everything with, for example address,undefined")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(common_options INTERFACE)
target_compile_definitions(common_options INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_USE_QSTRINGBUILDER)

# For code that includes headers of Qt Creator, which use Qt's keywords and ASCII literals.
add_library(ide_options INTERFACE)
target_compile_definitions(ide_options INTERFACE QT_RESTRICTED_CAST_FROM_ASCII)
target_link_libraries(ide_options INTERFACE common_options)

# For all other code.
add_library(project_options INTERFACE)
target_compile_definitions(project_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
target_link_libraries(project_options INTERFACE common_options)

if(MSVC)
    target_compile_options(common_options INTERFACE /W4 $<$<BOOL:${WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(common_options INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<BOOL:${WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(SANITIZE)
    target_compile_options(common_options INTERFACE
        -fsanitize=${SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(common_options INTERFACE -fsanitize=${SANITIZE})
endif()

# add_ide_plugin(<target> METADATA <file.json.in> SOURCES <file>... LIBRARIES <target>...)
#
# Adds a plugin of Qt Creator. The metadata file is configured into the build folder, which is an
# include folder of the target, as <file.json>.
function(add_ide_plugin target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "METADATA" "SOURCES;LIBRARIES")
    cmake_path(GET arg_METADATA STEM LAST_ONLY metadata)
    configure_file("${arg_METADATA}" "${CMAKE_CURRENT_BINARY_DIR}/${metadata}" @ONLY)
    add_library(${target} MODULE ${arg_SOURCES})
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    target_link_libraries(${target} PRIVATE
        ${arg_LIBRARIES} QtCreator::Core QtCreator::ExtensionSystem QtCreator::Utils
        ide_options)
    # CMake does not see by itself that moc reads the metadata file.
    set_property(TARGET ${target} APPEND PROPERTY AUTOMOC_DEPEND_FILTERS
        "Q_PLUGIN_METADATA" "FILE *\"([^\"]+)\"")
    set_target_properties(${target} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/plugins"
        INSTALL_RPATH "$ORIGIN;$ORIGIN/..")
endfunction()
