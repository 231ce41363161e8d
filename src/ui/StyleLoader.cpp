#include "StyleLoader.h"

#include "DisplayScale.h"
#include "StyleSheetScaler.h"

#include "core/ApplicationInfoManager.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QHash>
#include <QMessageBox>
#include <QResource>

#include <optional>

namespace StyleLoader {

namespace {

constexpr char kSelectSheet[] = "selectstyle.css";
constexpr char kPcSheet[] = "pcstyle.css";
constexpr char kTvSheet[] = "tvstyle.css";

struct Theme {
    const char *name;
    const char *file;
};

constexpr Theme kThemes[] = {
    {"whiteblue", "kelui_whiteblue.rcc"},
    {"red", "kelui_red.rcc"},
    {"whitered", "kelui_whitered.rcc"},
    {"blue", "kelui_blue.rcc"},
};

QHash<QString, QString> &sheets()
{
    static QHash<QString, QString> cache;
    return cache;
}

QString inApplicationFolder(const QString &name)
{
    return ApplicationInfoManager::instance()->applicationFolder() + QLatin1Char('/') + name;
}

void tellFileError(const QString &what)
{
    const QString text = QCoreApplication::translate("QApplication", "File error: ") + what;
    qInfo().noquote() << "[Process]" << text;
    QMessageBox box(QMessageBox::Critical, ApplicationInfoManager::instance()->productName(), text,
                    QMessageBox::Ok);
    box.exec();
}

bool isPresent(const QString &name)
{
    const QString path = inApplicationFolder(name);
    if (QFile::exists(path))
        return true;
    tellFileError(path);
    return false;
}

std::optional<QString> readSheet(const QString &sheet)
{
    const auto cached = sheets().constFind(sheet);
    if (cached != sheets().constEnd())
        return *cached;
    QFile file(QLatin1String(kCssPrefix) + sheet);
    if (!file.open(QIODevice::ReadOnly)) {
        // All sheets are told under the name of the PC sheet: they come and go together with the resource
        // file.
        tellFileError(QLatin1String(kPcSheet));
        return std::nullopt;
    }
    return *sheets().insert(sheet, QString::fromUtf8(file.readAll()));
}

std::optional<QString> scaledSheet(const QString &name, const char *sheet)
{
    if (!isPresent(name))
        return std::nullopt;
    const auto text = readSheet(QLatin1String(sheet));
    if (!text)
        return std::nullopt;
    return StyleSheetScaler::scaled(*text, DisplayScale::instance()->ratioWidth());
}

bool applyToApplication(const QString &name, const char *sheet)
{
    const auto text = scaledSheet(name, sheet);
    if (!text)
        return false;
    qApp->setStyleSheet(*text);
    return true;
}

} // namespace

bool loadResourceFile(const QString &name)
{
    if (!isPresent(name))
        return false;
    const QString path = inApplicationFolder(name);
    if (QResource::registerResource(path))
        return true;
    qInfo().noquote() << "[Process] resource file is no resource file:" << path;
    return false;
}

bool applySelectStyle(const QString &name)
{
    return applyToApplication(name, kSelectSheet);
}

bool applyPcStyle(const QString &name)
{
    return applyToApplication(name, kPcSheet);
}

bool applyTvStyle(const QString &name)
{
    return applyToApplication(name, kTvSheet);
}

bool applyPcStyleToWidget(QWidget *widget)
{
    const auto text = scaledSheet(QLatin1String(kResourceFile), kPcSheet);
    if (!text)
        return false;
    widget->setStyleSheet(*text);
    return true;
}

void releaseStyles()
{
    sheets().clear();
    sheets().squeeze();
}

bool hasAutoStyle()
{
    return QFile::exists(inApplicationFolder(QStringLiteral("autostyle")));
}

QString themeResourceFile(const QString &theme)
{
    for (const Theme &row : kThemes) {
        if (theme == QLatin1String(row.name))
            return QLatin1String(row.file);
    }
    return {};
}

} // namespace StyleLoader
