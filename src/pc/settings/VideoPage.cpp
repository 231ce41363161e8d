#include "VideoPage.h"

#include "SettingRowWidget.h"
#include "SettingsLook.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"
#include "ui/LookTokens.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

VideoPage::VideoPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Video, parent)
    , m_failure(new QLabel(this))
{
    auto *foot = new QWidget(this);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, Look::px(20), 0, 0);
    QPushButton *analyze = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Analyze Hardware"));
    m_failure->setObjectName(QLatin1String(SettingsLook::Problem));
    m_failure->setWordWrap(true);
    layout->addWidget(analyze);
    layout->addSpacing(Look::px(12));
    layout->addWidget(m_failure, 1);
    addPart(foot);

    connect(analyze, &QPushButton::clicked, this, &VideoPage::slot_hardwareDetectClicked);
    connect(model.binding(SettingsKeys::PC_EnableHDR), &SettingBinding::valueChanged, this,
            [this](const QVariant &isOn) { slot_setHDRState(isOn.toBool() ? Qt::Checked : Qt::Unchecked); });
    connect(model.binding(SettingsKeys::PC_HDRMode), &SettingBinding::valueChanged, this,
            &VideoPage::slot_updateSDRConfigState);
    slot_setHDRState(model.value(SettingsKeys::PC_EnableHDR).toBool() ? Qt::Checked : Qt::Unchecked);
}

void VideoPage::slot_setHDRState(int nState)
{
    setRowEnabled(SettingsKeys::PC_HDRMode, nState != Qt::Unchecked);
    slot_updateSDRConfigState();
}

// The curve counts where the picture is brought down to the normal range.
void VideoPage::slot_updateSDRConfigState()
{
    const bool bringsDown = !model().value(SettingsKeys::PC_EnableHDR).toBool()
                            || model().value(SettingsKeys::PC_HDRMode).toInt() == 1;
    setRowEnabled(SettingsKeys::PC_SDRMode, bringsDown);
    setRowEnabled(SettingsKeys::PC_SDRValue, bringsDown);
}

void VideoPage::slot_hardwareDetectClicked()
{
    const QString program =
        QStringLiteral("\"%1/%2\"")
            .arg(model().facts().programFolder, ApplicationInfoManager::hardwareCheckName());
    const bool isStarted = model().host().startProgram(program);
    if (!isStarted)
        qInfo().noquote() << "[Settings] cannot be started:" << program;
    m_failure->setText(isStarted ? QString() : tr("The analysis could not be started."));
}
