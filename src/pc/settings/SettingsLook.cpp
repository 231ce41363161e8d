#include "SettingsLook.h"

#include "dialogs/DialogLook.h"
#include "ui/DisplayScale.h"
#include "ui/StyleLoader.h"
#include "ui/StyleSheetScaler.h"

#include <QFile>

QString SettingsLook::styleSheet()
{
    QString sheet = DialogLook::styleSheet();
    QFile file(QLatin1String(StyleLoader::kCssPrefix) + QLatin1String("settings.css"));
    if (file.open(QIODevice::ReadOnly))
        sheet += StyleSheetScaler::scaled(QString::fromUtf8(file.readAll()),
                                          DisplayScale::instance()->ratioWidth());
    return sheet;
}
