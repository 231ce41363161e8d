// Marker files: files whose mere existence switches something on. Each is looked for once and the answer
// kept, since the drive it is named after may be slow to answer. Safe on every thread.
#pragma once

#include "Singleton.h"

#include <QHash>
#include <QString>

#include <functional>
#include <mutex>

class MarkerFiles final : public Singleton<MarkerFiles> {
public:
    static constexpr char DebugHotKey[] = "D:/debugHotKey.txt";
    static constexpr char DebugFileAssociation[] = "D:/debugFileAssociation.txt";
    static constexpr char DebugLog[] = "C:/quorin5.debug";
    static constexpr char IgnoreStatistics[] = "C:/PlayerIgnoreStatistics";

    // Turns the name of a marker into the path of the file on this machine.
    using Resolver = std::function<QString(const QString &drivePath)>;

    [[nodiscard]] bool exists(const QString &drivePath);

    // Replaces the rule of this platform and forgets all answers; an empty resolver brings the rule back.
    void setResolver(Resolver resolver);

private:
    friend class Singleton<MarkerFiles>;
    MarkerFiles() = default;

    std::mutex m_mutex;
    Resolver m_resolver;
    QHash<QString, bool> m_answers;
};
