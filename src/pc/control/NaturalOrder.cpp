#include "NaturalOrder.h"

#include <QLocale>

namespace NaturalOrder {

QCollator collator()
{
    // The locale of programs knows no order of numbers.
    QCollator made(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    made.setNumericMode(true);
    made.setCaseSensitivity(Qt::CaseInsensitive);
    return made;
}

} // namespace NaturalOrder
