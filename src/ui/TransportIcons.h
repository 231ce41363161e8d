// Pictures of the transport controls in any size and colour, from the forms that the resource file holds.
//
// The nearest larger form is taken, so that scales 1, 1.5 and 2 show the pixels that were drawn for them. GUI
// thread.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

namespace TransportIcons {

// A square picture of that many screen pixels; null when the resource file has none of this name.
[[nodiscard]] QPixmap pixmap(const QString &name, int sizePx, const QColor &color);

// The name of the one that stands for a file of this kind.
[[nodiscard]] QString nameOfFile(const QString &path);

} // namespace TransportIcons
