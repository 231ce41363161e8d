#include "NormalAboutDLg.h"

#include "DialogLook.h"

#include "core/ApplicationInfoManager.h"
#include "ui/LookTokens.h"
#include "ui/PictureLabel.h"

#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int Width = 480; // design pixels

struct Library {
    const char *name;
    const char *purpose;
    const char *licence;
};

constexpr Library Libraries[] = {
    {"Qt", QT_TRANSLATE_NOOP("NormalAboutDLg", "User interface"), "LGPL 3"},
    {"libmpv", QT_TRANSLATE_NOOP("NormalAboutDLg", "Playback"), "LGPL 2.1+ / GPL 2+"},
    {"FFmpeg", QT_TRANSLATE_NOOP("NormalAboutDLg", "Formats and codecs"), "LGPL 2.1+ / GPL 2+"},
    {"libdvdread, libdvdnav", QT_TRANSLATE_NOOP("NormalAboutDLg", "DVD"), "GPL 2+"},
    {"libbluray", QT_TRANSLATE_NOOP("NormalAboutDLg", "Blu-ray"), "LGPL 2.1+"},
    {"SQLite", QT_TRANSLATE_NOOP("NormalAboutDLg", "Media library"), "Public domain"},
    {"TagLib", QT_TRANSLATE_NOOP("NormalAboutDLg", "Music tags"), "LGPL 2.1 / MPL 1.1"},
    {"Boost", QT_TRANSLATE_NOOP("NormalAboutDLg", "Foundations"), "BSL 1.0"},
};

QLabel *makeLabel(const char *name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

NormalAboutDLg::NormalAboutDLg(QWidget *parent)
    : NormalAboutDLg({ApplicationInfoManager::productName(), ApplicationInfoManager::instance()->version(),
                      ApplicationInfoManager::instance()->buildDate()},
                     parent)
{
}

NormalAboutDLg::NormalAboutDLg(const Identity &identity, QWidget *parent)
    : NormalDialogFrame(tr("About"), parent)
{
    setMinimumWidth(Look::px(Width));
    addIdentity(identity);
    body()->addSpacing(Look::px(24));
    addLibraries();
    body()->addStretch(1);
    body()->addSpacing(Look::px(24));

    auto *foot = new QHBoxLayout;
    QPushButton *ok = makeButton(tr("OK"), panel());
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    foot->addStretch(1);
    foot->addWidget(ok);
    body()->addLayout(foot);
    ok->setFocus();
}

void NormalAboutDLg::addIdentity(const Identity &identity)
{
    auto *lines = new QVBoxLayout;
    lines->setSpacing(Look::px(4));
    lines->addWidget(makeLabel("dialogName", identity.product, panel()));
    QStringList facts;
    if (!identity.version.isEmpty())
        facts << tr("Version %1").arg(identity.version);
    if (identity.buildDate.isValid())
        facts << tr("built on %1").arg(QLocale().toString(identity.buildDate, QLocale::LongFormat));
    lines->addWidget(makeLabel(DialogLook::Soft, facts.join(QStringLiteral(", ")), panel()));
    lines->addWidget(makeLabel(DialogLook::Soft,
                               tr("Free software under the GNU General Public License, version 3 or later"),
                               panel()));

    auto *row = new QHBoxLayout;
    row->setSpacing(Look::px(20));
    if (QFile::exists(QStringLiteral(":/Resources/origin/appicon.png")))
        row->addWidget(new PictureLabel(QStringLiteral("appicon"), {64, 64}, panel()), 0, Qt::AlignTop);
    row->addLayout(lines, 1);
    body()->addLayout(row);
}

void NormalAboutDLg::addLibraries()
{
    body()->addWidget(makeLabel(DialogLook::Head, tr("Libraries"), panel()));
    body()->addSpacing(Look::px(8));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Look::px(20));
    grid->setVerticalSpacing(Look::px(6));
    grid->setColumnStretch(1, 1);
    int line = 0;
    for (const Library &library : Libraries) {
        grid->addWidget(makeLabel("dialogLibrary", QLatin1String(library.name), panel()), line, 0);
        grid->addWidget(makeLabel(DialogLook::Soft, tr(library.purpose), panel()), line, 1);
        grid->addWidget(makeLabel(DialogLook::Soft, QLatin1String(library.licence), panel()), line, 2);
        ++line;
    }
    body()->addLayout(grid);
}
