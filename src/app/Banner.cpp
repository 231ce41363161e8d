#include "Banner.h"

namespace Banner {

QStringList lines(const BannerFacts &facts)
{
    const struct {
        const char *label;
        QString value;
    } rows[] = {
        {"", facts.now.toString(Qt::TextDate)},
        {"********************** Quorin 6 Started **********************", {}},
        {"[Process] KernelVersion : ", facts.kernelVersion},
        {"[Process] ProductName : ", facts.productName},
        {"[Process] Local Language : ", QLocale::languageToString(facts.locale.language())},
        {"[Process] Country : ", QLocale::countryToString(facts.locale.country())},
        {"[Process] Resolution : ", QString::number(facts.resolution.width()) + QLatin1String(" * ")
                                        + QString::number(facts.resolution.height())},
        {"[Process] DPI : ", QString::number(double(facts.scaleFactor))},
        {"[Process] Player Version : ", facts.playerVersion},
        {"[Process] app args: ",
         QLatin1Char('(') + facts.arguments.join(QLatin1String(", ")) + QLatin1Char(')')},
    };
    QStringList result;
    for (const auto &row : rows)
        result << QLatin1String(row.label) + row.value;
    return result;
}

} // namespace Banner
