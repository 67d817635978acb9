# Finds a Qt Creator to build plugins for and provides the targets of its official development
# package: QtCreator::Core, QtCreator::ExtensionSystem and QtCreator::Utils.
#
# If that package is not installed (Debian has none), the targets use the libraries of the installed
# IDE and the headers of the same version's source archive. QtCreator_SOURCE_DIR names the archive's
# folder; the default is /usr/src/qtcreator-<version>.
#
# Sets QtCreator_VERSION and, relative to the prefix that the IDE is installed under,
# QtCreator_BINARY_PATH, QtCreator_LIBRARY_PATH, QtCreator_PLUGIN_PATH and QtCreator_DATA_PATH.

include(FindPackageHandleStandardArgs)

find_package(QtCreator ${QtCreator_FIND_VERSION} CONFIG QUIET COMPONENTS Core)
if(TARGET QtCreator::Core)
    set(QtCreator_BINARY_PATH "${IDE_BIN_PATH}")
    set(QtCreator_LIBRARY_PATH "${IDE_LIBRARY_PATH}")
    set(QtCreator_PLUGIN_PATH "${IDE_PLUGIN_PATH}")
    set(QtCreator_DATA_PATH "${IDE_DATA_PATH}")
    find_package_handle_standard_args(QtCreator CONFIG_MODE)
    return()
endif()

find_program(QtCreator_EXECUTABLE qtcreator)
if(QtCreator_EXECUTABLE)
    cmake_path(GET QtCreator_EXECUTABLE PARENT_PATH _prefix)
    cmake_path(GET _prefix PARENT_PATH _prefix)
    file(GLOB _utils "${_prefix}/lib/${CMAKE_LIBRARY_ARCHITECTURE}/qtcreator/libUtils.so.*.*.*")
endif()
if(_utils MATCHES "libUtils\\.so\\.([0-9.]+)$")
    set(QtCreator_VERSION "${CMAKE_MATCH_1}")
    set(QtCreator_BINARY_PATH "bin")
    set(QtCreator_LIBRARY_PATH "lib/${CMAKE_LIBRARY_ARCHITECTURE}/qtcreator")
    set(QtCreator_PLUGIN_PATH "${QtCreator_LIBRARY_PATH}/plugins")
    set(QtCreator_DATA_PATH "share/qtcreator")
    find_path(QtCreator_SOURCE_DIR src/plugins/coreplugin/icore.h
        PATHS "/usr/src/qtcreator-${QtCreator_VERSION}" NO_DEFAULT_PATH)
endif()

find_package_handle_standard_args(QtCreator
    REQUIRED_VARS QtCreator_EXECUTABLE QtCreator_SOURCE_DIR
    VERSION_VAR QtCreator_VERSION
    REASON_FAILURE_MESSAGE
        "tools/env runs a command where Qt Creator and its headers are installed.")

if(QtCreator_FOUND AND NOT TARGET QtCreator::Core)
    set(_source "${QtCreator_SOURCE_DIR}/src")
    set(_libraries "${_prefix}/${QtCreator_LIBRARY_PATH}")
    find_package(Qt6 QUIET COMPONENTS Widgets Network Qml)

    function(_add_qtcreator_target name location)
        add_library(QtCreator::${name} SHARED IMPORTED)
        set_target_properties(QtCreator::${name} PROPERTIES
            IMPORTED_LOCATION "${location}"
            INTERFACE_INCLUDE_DIRECTORIES "${ARGN}"
            INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${ARGN}")
    endfunction()
    _add_qtcreator_target(Utils "${_libraries}/libUtils.so.${QtCreator_VERSION}"
        "${_source}/libs" "${_source}/libs/3rdparty" "${_source}/libs/solutions")
    _add_qtcreator_target(ExtensionSystem
        "${_libraries}/libExtensionSystem.so.${QtCreator_VERSION}" "${_source}/libs")
    _add_qtcreator_target(Core "${_prefix}/${QtCreator_PLUGIN_PATH}/libCore.so"
        "${_source}/plugins" "${_source}/libs")
    target_link_libraries(QtCreator::Utils INTERFACE Qt6::Widgets Qt6::Network Qt6::Qml)
    target_link_libraries(QtCreator::ExtensionSystem INTERFACE QtCreator::Utils)
    target_link_libraries(QtCreator::Core INTERFACE QtCreator::ExtensionSystem QtCreator::Utils)
endif()
