// The log file of the program. Made at the first message, on whichever thread that comes; the message handler
// is its only user and serialises all of them, so the object has no lock of its own. Owns the file. A file
// that can't be opened loses its lines silently.
#pragma once

#include "Singleton.h"

#include <QObject>
#include <QString>

class QFile;

class CLogManager final : public QObject, public Singleton<CLogManager> {
    Q_OBJECT

public:
    // From this size on the older half of the file is given up when the log is opened.
    static constexpr qint64 SizeLimit = 0xA00000;

    explicit CLogManager(const QString &filePath);
    ~CLogManager() override;

    void writeLine(const QString &level, const QString &message);
    [[nodiscard]] QString path() const { return logFilePath; }

private:
    friend class Singleton<CLogManager>;
    CLogManager();

    void applySizeLimit() const;
    void writeText(const QString &text);

    QString logFilePath;
    QFile *m_file{nullptr};
};
