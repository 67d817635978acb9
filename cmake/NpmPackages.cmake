# Installs the packages that package.json names into the build folder.
#
# npm takes them from its registry or its cache, checks them against package-lock.json and runs
# none of their scripts. The packages stay until the lock file changes, so only the first
# configuration needs the network. Packages that only tests need are left out without BUILD_TESTING.
#
# Sets NpmPackages_DIR to the folder that holds a folder for each package.

set(NpmPackages_DIR "${CMAKE_BINARY_DIR}/npm/node_modules")

function(_install_npm_packages)
    set(lock_file "${PROJECT_SOURCE_DIR}/package-lock.json")
    set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY
        CMAKE_CONFIGURE_DEPENDS "${lock_file}")
    set(stamp "${NpmPackages_DIR}/.installed") # npm removes it with the folder
    file(SHA256 "${lock_file}" hash)
    set(omitted "")
    if(NOT BUILD_TESTING)
        set(omitted --omit=dev)
    endif()
    string(APPEND hash "${omitted}")
    if(EXISTS "${stamp}")
        file(READ "${stamp}" installed_hash)
        if(installed_hash STREQUAL hash)
            return()
        endif()
    endif()

    find_program(NPM_EXECUTABLE NAMES npm.cmd npm)
    if(NOT NPM_EXECUTABLE)
        message(FATAL_ERROR "npm was not found. It installs three.js, whose arithmetic the device "
            "model page uses. Install Node.js with npm, or set NPM_EXECUTABLE.")
    endif()
    message(STATUS "Installing the packages of package-lock.json")
    cmake_path(GET NpmPackages_DIR PARENT_PATH folder)
    file(COPY "${PROJECT_SOURCE_DIR}/package.json" "${lock_file}" DESTINATION "${folder}")
    execute_process(
        COMMAND "${NPM_EXECUTABLE}" ci ${omitted}
            --ignore-scripts --prefer-offline --no-audit --no-fund --no-update-notifier
        WORKING_DIRECTORY "${folder}"
        RESULT_VARIABLE result
        OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "npm could not install the packages of package-lock.json. Is its "
            "registry (npm config get registry) reachable? npm says (${result}):\n${output}")
    endif()
    file(WRITE "${stamp}" "${hash}")
endfunction()

_install_npm_packages()
