// A menu's entry that is known by a key: the text follows the language, the key does not. GUI thread.
#pragma once

#include <QAction>

class NormalAction final : public QAction {
    Q_OBJECT

public:
    NormalAction(const QString &key, const QString &text, QObject *parent)
        : QAction(text, parent)
        , m_key(key)
    {
    }

    [[nodiscard]] QString key() const { return m_key; }

private:
    QString m_key;
};
