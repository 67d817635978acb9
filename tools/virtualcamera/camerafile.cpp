#include "camerafile.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

static std::string trimmed(const std::string &text)
{
    const auto first = text.find_first_not_of(" \t");
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

static VirtualCamera parseLine(const std::string &line)
{
    VirtualCamera camera;
    std::istringstream columns(line);
    std::string column;
    std::getline(columns, column, '|');
    camera.name = trimmed(column);
    std::getline(columns, column, '|');
    std::istringstream properties(column);
    for (std::string property; properties >> property;) {
        const auto equals = property.find('=');
        if (equals != std::string::npos)
            camera.properties.emplace_back(property.substr(0, equals), property.substr(equals + 1));
    }
    std::getline(columns, column);
    camera.caps = trimmed(column);
    return camera;
}

std::string readCameraFile()
{
    const char *path = std::getenv("VIRTUAL_CAMERAS");
    std::ostringstream text;
    if (std::ifstream file(path ? path : "");
        file && file.peek() != std::ifstream::traits_type::eof())
        text << file.rdbuf();
    return text.str();
}

std::vector<VirtualCamera> parseCameras(const std::string &text)
{
    std::vector<VirtualCamera> cameras;
    std::istringstream file(text);
    for (std::string line; std::getline(file, line);) {
        if (!trimmed(line).empty() && line.front() != '#')
            cameras.push_back(parseLine(line));
    }
    return cameras;
}
