// A settings store in a file of its own.
#pragma once

#include "core/SettingsManager.h"

#include <QTemporaryDir>

class TestSettings {
public:
    SettingsManager &operator*() { return m_store; }
    SettingsManager *operator->() { return &m_store; }

private:
    QTemporaryDir m_folder;
    SettingsManager m_store{m_folder.filePath(QStringLiteral("config.ini"))};
};
