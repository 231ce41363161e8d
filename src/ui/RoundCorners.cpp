#include "RoundCorners.h"

#include "platform/Compositing.h"

#include <QVariant>
#include <QWidget>

namespace RoundCorners {

void prepare(QWidget *window, QWidget *panel)
{
    const bool blended = Compositing::isActive();
    window->setAttribute(Qt::WA_TranslucentBackground, blended);
    panel->setProperty("blended", blended);
}

} // namespace RoundCorners
