// A frame of a film that was never shot: dusk over a lake. Something to draw over that is bright in one part,
// dark in another and holds fine lines, as films do.
#pragma once

#include <QImage>

namespace FilmFrame {

[[nodiscard]] QImage make(const QSize &size);
// The same as an encoded picture.
[[nodiscard]] QByteArray encoded(const QSize &size);

} // namespace FilmFrame
