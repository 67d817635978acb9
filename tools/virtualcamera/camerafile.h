#pragma once

#include <string>
#include <utility>
#include <vector>

/// A camera, as described by a line of the file.
struct VirtualCamera
{
    std::string name;
    std::vector<std::pair<std::string, std::string>> properties; ///< select the camera
    std::string caps;

    bool operator==(const VirtualCamera &) const = default;
};

/*!
 * Returns the present text of the file that the environment variable VIRTUAL_CAMERAS names: the
 * cameras that are plugged in. Returns an empty text if there is no file.
 */
std::string readCameraFile();

/// The cameras of a file. A line is "NAME | PROPERTY=VALUE... | CAPS"; empty lines and those that
/// begin with "#" are skipped.
std::vector<VirtualCamera> parseCameras(const std::string &text);
