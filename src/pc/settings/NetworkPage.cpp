#include "NetworkPage.h"

#include "SettingRowWidget.h"

#include "core/SettingsKeys.h"

#include <QLineEdit>

using namespace SettingsKeys;

namespace {

constexpr int PortDigits = 5;

} // namespace

NetworkPage::NetworkPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Network, parent)
{
    row(PC_ProxyPort)->as<QLineEdit>()->setMaxLength(PortDigits);
    connect(model.binding(SettingTables::ProxyChoice), &SettingBinding::valueChanged, this,
            &NetworkPage::followChoice);
    followChoice();
}

void NetworkPage::followChoice()
{
    const bool isManual = model().value(SettingTables::ProxyChoice).toInt() == SettingTables::ManualProxy;
    for (const char *key : {PC_ProxyType, PC_ProxyHost, PC_ProxyPort, PC_ProxyUserName, PC_ProxyPasswd})
        setRowEnabled(key, isManual);
}
