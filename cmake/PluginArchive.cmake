# add_plugin_archive(<plugin>)
#
# Adds the target <plugin>_archive, a part of the target plugin_archives. It packs the files of the
# install component <plugin> into an archive that the IDE's dialog Install Plugin takes. The dialog
# refuses an archive with more than one plugin, and unpacks a tar.gz file with tar or CMake.

add_custom_target(plugin_archives)

function(add_plugin_archive plugin)
    set(folder "${CMAKE_BINARY_DIR}/archives/${plugin}")
    set(system "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
    add_custom_target(${plugin}_archive
        COMMAND "${CMAKE_COMMAND}" -E rm -rf "${folder}"
        COMMAND "${CMAKE_COMMAND}" --install "${CMAKE_BINARY_DIR}" --config $<CONFIG>
            --component ${plugin} --prefix "${folder}" --strip
        COMMAND "${CMAKE_COMMAND}" -E chdir "${folder}" "${CMAKE_COMMAND}" -E tar cz
            "${folder}-${PROJECT_VERSION}-${system}.tar.gz" --format=gnutar .
        VERBATIM)
    add_dependencies(${plugin}_archive ${plugin} ${ARGN})
    add_dependencies(plugin_archives ${plugin}_archive)
endfunction()
