#include "PlaybackPage.h"

PlaybackPage::PlaybackPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Playback, parent)
{
}
