// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MountTable.h"

#include <fstream>
#include <sstream>

namespace platform {

namespace {

    // The table writes a space, tab, newline or backslash in a path as an octal escape.
    std::string unescaped(const std::string &field)
    {
        std::string plain;
        for (size_t i = 0; i < field.size(); ++i) {
            if (field[i] == '\\' && i + 3 < field.size()) {
                plain.push_back(char(std::stoi(field.substr(i + 1, 3), nullptr, 8)));
                i += 3;
            } else {
                plain.push_back(field[i]);
            }
        }
        return plain;
    }

} // namespace

std::vector<MountPlace> mountPlacesOf(const std::vector<std::string> &folders)
{
    std::vector<MountPlace> places(folders.size());
    std::ifstream table("/proc/self/mountinfo");
    std::vector<size_t> matched(folders.size(), 0);
    std::vector<bool> found(folders.size(), false);
    // Later mounts cover earlier ones at the same place: the last longest match wins.
    for (std::string line; std::getline(table, line);) {
        std::istringstream fields(line);
        std::string id, parent, device, rootField, pointField;
        if (!(fields >> id >> parent >> device >> rootField >> pointField))
            continue;
        const std::string root = unescaped(rootField);
        const std::string point = unescaped(pointField);
        for (size_t i = 0; i < folders.size(); ++i) {
            const std::string &folder = folders[i];
            const bool inside = point == "/" || folder == point
                || (folder.size() > point.size() && folder.compare(0, point.size(), point) == 0
                    && folder[point.size()] == '/');
            if (!inside || (found[i] && point.size() < matched[i]))
                continue;
            found[i] = true;
            matched[i] = point.size();
            const std::string rest = point == "/" ? folder : folder.substr(point.size());
            std::string path = root == "/" ? rest : root + rest;
            if (path.empty())
                path = "/";
            places[i] = {device, path};
        }
    }
    return places;
}

} // namespace platform
