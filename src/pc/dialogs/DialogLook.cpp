#include "DialogLook.h"

#include "ui/DisplayScale.h"
#include "ui/LookTokens.h"
#include "ui/StyleSheetScaler.h"

#include <QFile>

namespace DialogLook {

namespace {

// %1 panel, %2 line, %3 text, %4 soft, %5 raised, %6 accent, %7 accent under the pointer, %8 danger, %9 mute,
// %10 text on the accent.
// A border keeps its place when it is not shown, so that nothing moves when the focus does.
constexpr char Sheet[] = R"(
* { font-family: "Inter", "Segoe UI", "Noto Sans"; }
#dialogPanel { background: %1; border: 1px solid %2; }
#dialogPanel[blended="true"] { border-radius: 12px; }
QLabel, QTextBrowser { background: transparent; color: %3; font-size: 14px; }
QLabel#dialogTitle { font-size: 13px; font-weight: 600; }
QLabel#messageHead { font-size: 15px; font-weight: 600; }
QLabel#dialogSoft { font-size: 13px; color: %4; }
QLabel#dialogValue { font-size: 13px; color: %4; }
QLabel#dialogName { font-size: 20px; font-weight: 600; }
QTextBrowser { border: 0; padding: 0; selection-background-color: %6; selection-color: %10; }
QCheckBox { font-size: 13px; color: %4; spacing: 10px; background: transparent; }
QCheckBox:hover, QCheckBox:focus { color: %3; }
QPushButton#windowCloseButton { background: transparent; border: 0; border-radius: 4px; }
QPushButton#windowCloseButton:hover { background: %8; }
QPushButton#dialogButton { background: %5; color: %3; font-size: 14px; border: 2px solid transparent;
    border-radius: 6px; padding: 0px 18px; min-height: 32px; min-width: 64px; }
QPushButton#dialogButton:hover { background: %2; }
QPushButton#dialogButton:pressed { background: %1; }
QPushButton#dialogButton:focus { border: 2px solid %7; }
QPushButton#dialogButton:default { background: %6; color: %10; font-weight: 600; }
QPushButton#dialogButton:default:hover { background: %7; }
QPushButton#dialogButton:default:pressed { background: #1287d3; }
QPushButton#dialogButton:default:focus { border: 2px solid #6cc6fb; }
QPushButton#dialogButton:disabled { color: %9; background: %5; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0px; border: 0; }
QScrollBar::handle:vertical { background: %2; border-radius: 4px; min-height: 32px; margin: 1px; }
QScrollBar::handle:vertical:hover { background: #3d5468; }
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }
QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }
)";

// The marks of a check box are pictures, stretched because a plain image never grows with its box; without
// the resource file the style's own marks have to do.
constexpr char CheckSheet[] = R"(
QCheckBox::indicator { width: 16px; height: 16px;
    border-image: url(":/Resources/origin/check_off@2x.png") 0 0 0 0 stretch stretch; }
QCheckBox::indicator:hover, QCheckBox::indicator:focus {
    border-image: url(":/Resources/origin/check_off_hover@2x.png") 0 0 0 0 stretch stretch; }
QCheckBox::indicator:checked { border-image: url(":/Resources/origin/check_on@2x.png") 0 0 0 0 stretch stretch; }
)";

QString name(QRgb value)
{
    return Look::color(value).name();
}

} // namespace

QString styleSheet()
{
    QString sheet = QString::fromLatin1(Sheet).arg(name(Look::Panel), name(Look::Line), name(Look::Text),
                                                   name(Look::Soft), name(Look::Raised), name(Look::Accent),
                                                   name(Look::AccentHover), name(Look::Danger),
                                                   name(Look::Mute), name(Look::OnAccent));
    if (QFile::exists(QStringLiteral(":/Resources/origin/check_off@2x.png")))
        sheet += QLatin1String(CheckSheet);
    return StyleSheetScaler::scaled(sheet, DisplayScale::instance()->ratioWidth());
}

} // namespace DialogLook
