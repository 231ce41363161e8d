#include "player/AudioOutputs.h"

#include <gtest/gtest.h>

namespace {

const AudioOutputs::Devices &devices()
{
    static const AudioOutputs::Devices list{{"Speakers", libvp::VD_Connection_Analog, 0},
                                            {"Receiver", libvp::VD_Connection_Hdmi, 7},
                                            {"Screen", libvp::VD_Connection_Hdmi, 1},
                                            {"Optical", libvp::VD_Connection_Optical, 3}};
    return list;
}

} // namespace

TEST(AudioOutputsTest, TheDeviceOfTheNameIsChosenElseTheFirst)
{
    EXPECT_EQ(AudioOutputs::choose(devices(), "Optical")->name, QStringLiteral("Optical"));
    EXPECT_EQ(AudioOutputs::choose(devices(), "optical")->name, QStringLiteral("Speakers"));
    EXPECT_EQ(AudioOutputs::choose(devices(), QString())->name, QStringLiteral("Speakers"));
    EXPECT_FALSE(AudioOutputs::choose({}, "Optical").has_value());
    EXPECT_TRUE(AudioOutputs::contains(devices(), "Screen"));
    EXPECT_FALSE(AudioOutputs::contains(devices(), "Pulled out"));
}

TEST(AudioOutputsTest, DevicesOfAConnectionAreFoundInTheirOrder)
{
    const AudioOutputs::Devices found = AudioOutputs::ofConnection(devices(), libvp::VD_Connection_Hdmi);
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].name, QStringLiteral("Receiver"));
    EXPECT_EQ(found[1].name, QStringLiteral("Screen"));
    EXPECT_TRUE(AudioOutputs::ofConnection(devices(), libvp::VD_Connection_DisplayPort).isEmpty());
}

TEST(AudioOutputsTest, NoneAndAnalogAllowNoPassThrough)
{
    EXPECT_FALSE(AudioOutputs::allowsPassThrough(libvp::VD_Connection_None));
    EXPECT_FALSE(AudioOutputs::allowsPassThrough(libvp::VD_Connection_Analog));
    EXPECT_TRUE(AudioOutputs::allowsPassThrough(libvp::VD_Connection_Optical));
    EXPECT_TRUE(AudioOutputs::allowsPassThrough(libvp::VD_Connection_Hdmi));
    EXPECT_TRUE(AudioOutputs::allowsPassThrough(libvp::VD_Connection_DisplayPort));
}

TEST(AudioOutputsTest, TheMaskHasABitForEachFormat)
{
    EXPECT_EQ(AudioOutputs::codecMask(true, false, false), 1U);
    EXPECT_EQ(AudioOutputs::codecMask(false, true, false), 2U);
    EXPECT_EQ(AudioOutputs::codecMask(false, false, true), 4U);
    EXPECT_EQ(AudioOutputs::codecMask(true, true, true), 7U);
}

TEST(AudioOutputsTest, OnlyFormatsThatReceiverAndDeviceTakeArePassedThrough)
{
    EXPECT_EQ(AudioOutputs::codecValue(libvp::VD_Connection_Hdmi, 7, 5), 5);
    EXPECT_EQ(AudioOutputs::codecValue(libvp::VD_Connection_Optical, 3, 7), 3);
    EXPECT_EQ(AudioOutputs::codecValue(libvp::VD_Connection_Hdmi, 0, 7), 0);
    EXPECT_EQ(AudioOutputs::codecValue(libvp::VD_Connection_Analog, 7, 7), 0);
    EXPECT_EQ(AudioOutputs::codecValue(libvp::VD_Connection_None, 7, 7), 0);
}
