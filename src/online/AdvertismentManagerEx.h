// Front of the advertising: knows the language and the folders, and stops the downloads at exit.
//
// One object a process, GUI thread.
#pragma once

#include <QObject>
#include <QString>

class AdvertismentManagerEx final : public QObject {
    Q_OBJECT
public:
    struct Paths {
        QString dataFolder;
        QString tempFolder;
    };

    static AdvertismentManagerEx *instance();

    explicit AdvertismentManagerEx(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    void setLanguage(const QString &code) { m_language = code; }
    void setPaths(const Paths &paths) { m_paths = paths; }
    [[nodiscard]] QString language() const { return m_language; }
    [[nodiscard]] Paths paths() const { return m_paths; }

    // Ends the downloads that run; with no advertising server there is none to end.
    void stopDownloads();

    // Told by a window that closes: whether anything has been played with this configuration.
    void windowClosed(bool played);

private:
    QString m_language;
    Paths m_paths;
};
