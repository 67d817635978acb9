#pragma once

#include <string>
#include <utility>
#include <vector>

/// A camera as a line of the file tells it.
struct VirtualCamera
{
    std::string name;
    std::vector<std::pair<std::string, std::string>> properties; ///< that select it
    std::string caps;

    bool operator==(const VirtualCamera &) const = default;
};

/*!
 * The file that the environment variable VIRTUAL_CAMERAS names, as it is now: the cameras that are
 * plugged in. Without a file there are none.
 */
std::string readCameraFile();

/// The cameras of a file. A line is "NAME | PROPERTY=VALUE... | CAPS"; empty lines and those that
/// begin with "#" are skipped.
std::vector<VirtualCamera> parseCameras(const std::string &text);
