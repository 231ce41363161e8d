// The extensions that are to open with the program, as the text box of the settings holds them:
// "*.mkv; *.mp4;".
//
// Checks the text, keeps it in the store and works out what the system has to change. Knows no widget. GUI
// thread.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class ISettingsHost;
class SettingsManager;

class FileAssociationList final : public QObject {
    Q_OBJECT

public:
    enum class Problem { None, Form, Unknown };

    // The host outlives the list.
    explicit FileAssociationList(ISettingsHost &host, QObject *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);
    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool enabled);

    // What is wrong with the text; nothing while associations are off.
    [[nodiscard]] Problem problem() const;
    [[nodiscard]] QString problemText() const;
    // Lower case, without a point, each once.
    [[nodiscard]] QStringList extensions() const;

    void load(const SettingsManager &store);
    void setDefault();
    // Stores flag and list and has the system follow, which may take longer than this call: store and host
    // must still be there then. A refusal puts both back in the store and is told by refused().
    void save(SettingsManager &store);

    [[nodiscard]] static QString textOf(const QStringList &extensions);
    [[nodiscard]] static Problem problemOf(const QString &text);
    [[nodiscard]] static QStringList extensionsOf(const QString &text);

signals:
    void changed();
    void refused();

private:
    ISettingsHost &m_host;
    QString m_text;
    bool m_isEnabled{false};
    bool m_wasEnabled{false};
};
