// Gives a file a new content in one step, through the file that it links to where it is a link.
#pragma once

#include <QFile>
#include <QString>

#include <string>

namespace WholeFile {

// Empty, or the reason why the file could not be written; then it is as it was. Makes its folder. A file that
// nobody may write stays, whoever asks.
[[nodiscard]] QString write(const QString &path, const std::string &content, QFile::Permissions rights = {});

} // namespace WholeFile
