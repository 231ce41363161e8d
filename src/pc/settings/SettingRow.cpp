#include "SettingRow.h"

#include <QCoreApplication>

QString SettingChoice::shown() const
{
    return name.isEmpty() ? QCoreApplication::translate(context, text) : name;
}

QString SettingRow::translated(const char *text)
{
    return text && *text ? QCoreApplication::translate("NormalSettingPage", text) : QString();
}
