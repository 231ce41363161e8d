// Parts of absolute paths with '/' as separator. Pure; any thread.
#pragma once

#include <QString>

namespace FolderPath {

[[nodiscard]] inline QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

// Empty above the topmost folder.
[[nodiscard]] inline QString parentOf(const QString &path)
{
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    return slash <= 0 ? QString() : path.left(slash);
}

[[nodiscard]] inline QString join(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

// Below the root, and not the root itself.
[[nodiscard]] inline bool isBelow(const QString &path, const QString &root)
{
    return path.size() > root.size() && path.startsWith(root)
           && (root.endsWith(QLatin1Char('/')) || path.at(root.size()) == QLatin1Char('/'));
}

} // namespace FolderPath
