// A bar of controls on a player that notes what it is asked, and hands for it.
#pragma once

#include "FakeCommands.h"
#include "TestSettings.h"

#include "transport/NormalOperateBar.h"
#include "transport/NormalProgressBar.h"
#include "transport/TransportButton.h"
#include "transport/VolumeControl.h"
#include "transport/VolumeSlider.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

class OperateBars : public testing::Test {
protected:
    using Button = NormalOperateBar::Button;
    using Status = QPlayer::QPlayerStatus;

    void SetUp() override
    {
        bar.resize(1280, 132);
        bar.show();
    }
    void play(int seconds = 60, int total = 600)
    {
        bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
        bar.slot_setTimeInfo(seconds, total);
        player.calls.clear();
    }
    [[nodiscard]] QPoint at(int seconds) const
    {
        return {qRound(bar.progressBar()->track().xOf(seconds)), bar.progressBar()->height() / 2};
    }
    [[nodiscard]] bool isSeen(Button button) const { return bar.button(button)->isVisible(); }
    void click(Button button) { QTest::mouseClick(bar.button(button), Qt::LeftButton); }

    FakeCommands player;
    TestSettings settings;
    NormalOperateBar bar{player.commands(), *settings};
    QSignalSpy behaviour{&bar, &NormalOperateBar::sig_userBehaviour};
};
