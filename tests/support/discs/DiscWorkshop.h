// The cache that test discs are kept in, and the tools that make them.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class DiscWorkshop final {
public:
    DiscWorkshop() = delete;

    // Path of the entry; make() fills the path it is given, a sibling that becomes the entry once it is
    // whole. Empty when make() answered false.
    static QString entry(const QString &name, const std::function<bool(const QString &)> &make);

    // False, with the reason in error(), when the tool is missing, fails or takes longer than two minutes.
    static bool run(const QString &program, const QStringList &arguments);

    static bool write(const QString &path, const QByteArray &bytes);

    static QString error();
    static bool fail(const QString &reason);
};
