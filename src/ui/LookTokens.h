// The look in numbers: colours, type and times, each once. Lengths are design pixels and pass through
// DisplayScale.
#pragma once

#include "DisplayScale.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QRect>
#include <QStringList>

namespace Look {

// Grounds, from deep to raised, and the line between them.
inline constexpr QRgb Deep = 0xff0b0f13;
inline constexpr QRgb Ground = 0xff161c22;
inline constexpr QRgb Panel = 0xff1b232b;
inline constexpr QRgb Raised = 0xff22303b;
inline constexpr QRgb Line = 0xff2b3947;

inline constexpr QRgb Text = 0xffe9eef2;
inline constexpr QRgb Soft = 0xff9fb0be;
inline constexpr QRgb Mute = 0xff66788a;

inline constexpr QRgb Accent = 0xff179cf1;
inline constexpr QRgb AccentHover = 0xff3bb0fa;
// White on the accent is too faint to read; the deep ground is not.
inline constexpr QRgb OnAccent = 0xff0b0f13;
inline constexpr QRgb Danger = 0xffe5484d;
// What goes beyond the normal range, as a volume above 100 percent.
inline constexpr QRgb Beyond = 0xfff2b84b;

// Over the picture: controls, what they rest on and the empty part of a track.
inline constexpr QRgb Control = 0xffd6dee5;
inline constexpr QRgb ControlBright = 0xffffffff;
inline constexpr QRgb ControlOff = 0x5cd6dee5;
inline constexpr QRgb ControlGround = 0x14ffffff;
inline constexpr QRgb ControlHover = 0x1fffffff;
inline constexpr QRgb ControlPressed = 0x33ffffff;
inline constexpr QRgb Track = 0x40ffffff;
inline constexpr QRgb TrackOff = 0x24ffffff;
inline constexpr QRgb TrackHover = 0x66ffffff;
inline constexpr QRgb Note = 0xd10b0f13;
inline constexpr QRgb NoteLine = 0x1affffff;

inline constexpr int CornerControl = 4;
inline constexpr int CornerCard = 8;
inline constexpr int CornerDialog = 12;

// For what follows the pointer.
inline constexpr int FadeInMs = 160;
inline constexpr int FadeOutMs = 220;

[[nodiscard]] inline QColor color(QRgb value)
{
    return QColor::fromRgba(value);
}

// Design pixels to screen pixels, never less than one.
[[nodiscard]] inline int px(int designPixels)
{
    return qMax(1, DisplayScale::instance()->scaleHeight(designPixels));
}

// Where a line of text stands in a rectangle, so that its capitals and figures look centred.
[[nodiscard]] inline int baseline(const QRect &rect, const QFontMetrics &metrics)
{
    return rect.top() + (rect.height() + metrics.capHeight() + 1) / 2;
}

[[nodiscard]] inline QFont font(int designPixels, QFont::Weight weight = QFont::Normal)
{
    QFont font;
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Segoe UI"), QStringLiteral("Noto Sans")});
    font.setPixelSize(px(designPixels));
    font.setWeight(weight);
    return font;
}

} // namespace Look
