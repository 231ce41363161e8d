#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "dialogs/DialogSlider.h"
#include "dialogs/IPictureControl.h"
#include "dialogs/NormalColorAdjustDlg.h"
#include "dialogs/NormalVideoControlDlg.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Writes down what it is told.
class RecordingControl final : public IPictureControl {
public:
    void setBrightness(float value) override { note("brightness", value); }
    void setSaturation(float value) override { note("saturation", value); }
    void setContrast(float value) override { note("contrast", value); }
    void setZoomAmount(float zoom) override { note("zoom", zoom); }
    void setVerticalShift(float shift) override { note("shift", shift); }
    void setPixelRatio(float ratio) override { note("ratio", ratio); }
    void setCustomView() override { calls << QStringLiteral("custom"); }

    QStringList calls;

private:
    void note(const char *name, float value)
    {
        calls << QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(double(value));
    }
};

QPushButton *button(const QWidget &dialog, const char *text)
{
    for (QPushButton *candidate : dialog.findChildren<QPushButton *>()) {
        if (candidate->text() == QLatin1String(text))
            return candidate;
    }
    return nullptr;
}

class PictureDialogsTest : public testing::Test {
protected:
    int stored(const char *key) { return settings->value(key).toInt(); }

    TestSettings settings;
    RecordingControl control;
};

} // namespace

TEST_F(PictureDialogsTest, ColorSlidersStartNeutralWhereNothingIsStored)
{
    NormalColorAdjustDlg dialog(*settings, control);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(dialog.slider(row)->value(), 50);
        EXPECT_EQ(dialog.slider(row)->minimum(), 0);
        EXPECT_EQ(dialog.slider(row)->maximum(), 100);
    }
    EXPECT_TRUE(control.calls.isEmpty());
}

TEST_F(PictureDialogsTest, ColorSlidersStartAtTheStoredValuesAndPassThemOnOnlyWhenMoved)
{
    settings->setValue(SettingsKeys::PC_Brightness, 10);
    settings->setValue(SettingsKeys::PC_Saturation, 20);
    settings->setValue(SettingsKeys::PC_Contrast, 30);
    NormalColorAdjustDlg dialog(*settings, control);
    EXPECT_EQ(dialog.slider(NormalColorAdjustDlg::Brightness)->value(), 10);
    EXPECT_EQ(dialog.slider(NormalColorAdjustDlg::Saturation)->value(), 20);
    EXPECT_EQ(dialog.slider(NormalColorAdjustDlg::Contrast)->value(), 30);
    EXPECT_TRUE(control.calls.isEmpty());
    dialog.slider(NormalColorAdjustDlg::Brightness)->setValue(11);
    dialog.slider(NormalColorAdjustDlg::Saturation)->setValue(21);
    dialog.slider(NormalColorAdjustDlg::Contrast)->setValue(31);
    EXPECT_EQ(control.calls, QStringList({"brightness 11", "saturation 21", "contrast 31"}));
}

TEST_F(PictureDialogsTest, StoredNonsenseFallsBackAndStaysInRange)
{
    settings->setValue(SettingsKeys::PC_Brightness, "much");
    settings->setValue(SettingsKeys::PC_Contrast, 4000);
    NormalColorAdjustDlg dialog(*settings, control);
    EXPECT_EQ(dialog.slider(NormalColorAdjustDlg::Brightness)->value(), 50);
    EXPECT_EQ(dialog.slider(NormalColorAdjustDlg::Contrast)->value(), 100);
}

TEST_F(PictureDialogsTest, NothingIsStoredWhileTheDialogIsOpen)
{
    NormalColorAdjustDlg dialog(*settings, control);
    dialog.show();
    dialog.slider(NormalColorAdjustDlg::Brightness)->setValue(70);
    EXPECT_FALSE(settings->contains(SettingsKeys::PC_Brightness));
}

TEST_F(PictureDialogsTest, MovedSliderAndClosedDialogKeepTheValue)
{
    {
        NormalColorAdjustDlg dialog(*settings, control);
        dialog.show();
        dialog.slider(NormalColorAdjustDlg::Contrast)->setValue(70);
        dialog.close();
        EXPECT_FALSE(settings->contains(SettingsKeys::PC_Contrast));
    }
    EXPECT_EQ(stored(SettingsKeys::PC_Contrast), 70);
    EXPECT_EQ(stored(SettingsKeys::PC_Brightness), 50);
    {
        NormalVideoControlDlg dialog(*settings, control);
        dialog.slider(NormalVideoControlDlg::ZoomAmount)->setValue(150);
    }
    EXPECT_EQ(stored(SettingsKeys::PC_ZoomAmount), 150);
    EXPECT_EQ(stored(SettingsKeys::PC_VerticalShift), 200);
    EXPECT_EQ(stored(SettingsKeys::PC_PixelRatio), 100);
}

TEST_F(PictureDialogsTest, ColorPresetsSetAllThreeAndStoreAtOnce)
{
    const struct {
        const char *text;
        int brightness, saturation, contrast;
    } rows[] = {{"Soft", 44, 51, 44}, {"Bright", 60, 52, 64}, {"Reset", 50, 50, 50}};
    NormalColorAdjustDlg dialog(*settings, control);
    for (const auto &row : rows) {
        ASSERT_NE(button(dialog, row.text), nullptr) << row.text;
        button(dialog, row.text)->click();
        EXPECT_EQ(stored(SettingsKeys::PC_Brightness), row.brightness) << row.text;
        EXPECT_EQ(stored(SettingsKeys::PC_Saturation), row.saturation) << row.text;
        EXPECT_EQ(stored(SettingsKeys::PC_Contrast), row.contrast) << row.text;
        EXPECT_EQ(dialog.slider(NormalColorAdjustDlg::Contrast)->value(), row.contrast) << row.text;
    }
    EXPECT_EQ(control.calls.mid(0, 3), QStringList({"brightness 44", "saturation 51", "contrast 44"}));
}

TEST_F(PictureDialogsTest, VideoSlidersAtRestLeaveTheViewAlone)
{
    settings->setValue(SettingsKeys::PC_ZoomAmount, 130);
    {
        NormalVideoControlDlg dialog(*settings, control);
        dialog.show();
        EXPECT_EQ(dialog.slider(NormalVideoControlDlg::ZoomAmount)->value(), 130);
    }
    EXPECT_TRUE(control.calls.isEmpty());
}

TEST_F(PictureDialogsTest, FirstMoveOfAVideoSliderSwitchesToTheCustomView)
{
    NormalVideoControlDlg dialog(*settings, control);
    const struct {
        int slider, value;
        const char *call;
    } rows[] = {{NormalVideoControlDlg::ZoomAmount, 150, "zoom 1.5"},
                {NormalVideoControlDlg::VerticalShift, 50, "shift -1.5"},
                {NormalVideoControlDlg::VerticalShift, 400, "shift 2"},
                {NormalVideoControlDlg::PixelRatio, 50, "ratio 0.5"}};
    for (const auto &row : rows) {
        control.calls.clear();
        dialog.slider(row.slider)->setValue(row.value);
        ASSERT_FALSE(control.calls.isEmpty());
        EXPECT_EQ(control.calls.first(), "custom") << row.call;
        EXPECT_EQ(control.calls.at(1), row.call);
        EXPECT_EQ(control.calls.last(), "custom") << row.call;
    }
}

TEST_F(PictureDialogsTest, VideoSlidersHaveTheirRangesAndDefaults)
{
    NormalVideoControlDlg dialog(*settings, control);
    const struct {
        int slider, minimum, maximum, value;
    } rows[] = {{NormalVideoControlDlg::ZoomAmount, 50, 200, 100},
                {NormalVideoControlDlg::VerticalShift, 0, 400, 200},
                {NormalVideoControlDlg::PixelRatio, 50, 200, 100}};
    for (const auto &row : rows) {
        EXPECT_EQ(dialog.slider(row.slider)->minimum(), row.minimum);
        EXPECT_EQ(dialog.slider(row.slider)->maximum(), row.maximum);
        EXPECT_EQ(dialog.slider(row.slider)->value(), row.value);
    }
}

TEST_F(PictureDialogsTest, VideoResetSetsAllThreeAndStoresAtOnce)
{
    settings->setValue(SettingsKeys::PC_ZoomAmount, 130);
    settings->setValue(SettingsKeys::PC_VerticalShift, 10);
    settings->setValue(SettingsKeys::PC_PixelRatio, 60);
    NormalVideoControlDlg dialog(*settings, control);
    button(dialog, "Reset")->click();
    EXPECT_EQ(stored(SettingsKeys::PC_ZoomAmount), 100);
    EXPECT_EQ(stored(SettingsKeys::PC_VerticalShift), 200);
    EXPECT_EQ(stored(SettingsKeys::PC_PixelRatio), 100);
}

TEST_F(PictureDialogsTest, KeysMoveASliderAndEnterDoesNotResetIt)
{
    NormalColorAdjustDlg dialog(*settings, control);
    dialog.show();
    DialogSlider *slider = dialog.slider(NormalColorAdjustDlg::Brightness);
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_PageUp);
    EXPECT_EQ(slider->value(), 61);
    QTest::keyClick(slider, Qt::Key_Return);
    EXPECT_EQ(slider->value(), 61);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(PictureDialogsTest, SliderJumpsToWhereItIsClicked)
{
    NormalColorAdjustDlg dialog(*settings, control);
    dialog.show();
    DialogSlider *slider = dialog.slider(NormalColorAdjustDlg::Saturation);
    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->width() - 2, slider->height() / 2});
    EXPECT_EQ(slider->value(), 100);
    QTest::mouseMove(slider, {1, slider->height() / 2});
    QMouseEvent move(QEvent::MouseMove, QPointF(1, 5), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(slider, &move);
    EXPECT_EQ(slider->value(), 0);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {1, slider->height() / 2});
    EXPECT_EQ(control.calls.first(), "saturation 100");
    EXPECT_EQ(control.calls.last(), "saturation 0");
}
