#include "LibraryPage.h"

#include "SettingsLook.h"

#include "core/SettingsKeys.h"
#include "ui/LookTokens.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

constexpr int ListHeight = 106; // design pixels

} // namespace

LibraryPage::LibraryPage(SettingsModel &model, Ask ask, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Library, parent)
    , m_ask(std::move(ask))
{
    m_missing = addNote(QT_TRANSLATE_NOOP("NormalSettingPage", "The media library is not available."));
    addFolders(0, ILibraryPaths::Kind::Video, QT_TRANSLATE_NOOP("NormalSettingPage", "Videos"));
    addFolders(1, ILibraryPaths::Kind::Music, QT_TRANSLATE_NOOP("NormalSettingPage", "Music"));

    auto *foot = new QWidget(this);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, Look::px(20), 0, 0);
    layout->setSpacing(Look::px(12));
    m_update = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Update Library"));
    m_rebuild = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Rebuild Library"));
    layout->addWidget(m_update);
    layout->addWidget(m_rebuild);
    layout->addStretch(1);
    addPart(foot);
    connect(m_update, &QPushButton::clicked, this, &LibraryPage::slot_updateLibrary);
    connect(m_rebuild, &QPushButton::clicked, this, &LibraryPage::slot_rebuildLibrary);

    if (ILibraryPaths *library = model.host().library())
        library->setChangedHandler([this] { follow(); });
    follow();
}

LibraryPage::~LibraryPage()
{
    if (ILibraryPaths *library = model().host().library())
        library->setChangedHandler({});
}

void LibraryPage::addFolders(std::size_t place, ILibraryPaths::Kind kind, const char *title)
{
    addHead(title);
    auto *part = new QWidget(this);
    auto *layout = new QHBoxLayout(part);
    layout->setContentsMargins(0, Look::px(4), 0, 0);
    layout->setSpacing(Look::px(12));
    Folders &folders = m_folders[place];
    folders.kind = kind;
    folders.list = new QListWidget(part);
    folders.list->setObjectName(QLatin1String(SettingsLook::List));
    folders.list->setFixedHeight(Look::px(ListHeight));
    folders.list->setTextElideMode(Qt::ElideMiddle);
    folders.list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    folders.list->setAccessibleName(SettingRow::translated(title));
    folders.add = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Add New Directory"));
    folders.remove = makeButton(QT_TRANSLATE_NOOP("NormalSettingPage", "Remove"));
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(Look::px(8));
    buttons->addWidget(folders.add);
    buttons->addWidget(folders.remove);
    buttons->addStretch(1);
    layout->addWidget(folders.list, 1);
    layout->addLayout(buttons);
    addPart(part);
    connect(folders.add, &QPushButton::clicked, this, [this, place] { addFolder(m_folders[place]); });
    connect(folders.remove, &QPushButton::clicked, this, [this, place] { removeFolder(m_folders[place]); });
    connect(folders.list, &QListWidget::currentRowChanged, this, [this, place](int row) {
        m_folders[place].remove->setEnabled(row >= 0 && m_folders[place].list->isEnabled());
    });
}

void LibraryPage::retranslate()
{
    SettingsPageWidget::retranslate();
    follow();
}

void LibraryPage::follow()
{
    const ILibraryPaths *library = model().host().library();
    const bool isReady = library && library->isReady();
    m_missing->setVisible(!isReady);
    for (const Folders &folders : m_folders) {
        const int before = folders.list->currentRow();
        folders.list->clear();
        if (library) {
            const QStringList paths = library->folders(folders.kind);
            for (const QString &path : paths) {
                auto *item = new QListWidgetItem(QDir::toNativeSeparators(path), folders.list);
                item->setData(Qt::UserRole, path);
                item->setToolTip(item->text());
            }
        }
        folders.list->setCurrentRow(qMin(before, folders.list->count() - 1));
        folders.list->setEnabled(isReady);
        folders.add->setEnabled(isReady);
        folders.remove->setEnabled(isReady && folders.list->currentRow() >= 0);
    }
    m_update->setEnabled(isReady);
    m_rebuild->setEnabled(isReady);
    setRowEnabled(SettingsKeys::PC_EnableAdultContent, isReady);
}

void LibraryPage::addFolder(const Folders &folders)
{
    const QString path = QFileDialog::getExistingDirectory(window(), folders.add->text());
    ILibraryPaths *library = model().host().library();
    if (path.isEmpty() || !library)
        return;
    library->add(folders.kind, path, model().value(SettingsKeys::PC_EnableAdultContent).toBool());
    follow();
}

void LibraryPage::removeFolder(const Folders &folders)
{
    const QListWidgetItem *item = folders.list->currentItem();
    ILibraryPaths *library = model().host().library();
    if (!item || !library)
        return;
    library->remove(folders.kind, item->data(Qt::UserRole).toString());
    follow();
}

void LibraryPage::slot_addLibraryPathClicked()
{
    addFolder(m_folders.front());
}

void LibraryPage::slot_updateLibrary()
{
    if (ILibraryPaths *library = model().host().library())
        library->update();
}

void LibraryPage::slot_rebuildLibrary()
{
    if (!m_ask || !m_ask(window(), tr("Are you sure to clear and rebuild your library?"), tr("Rebuild")))
        return;
    if (ILibraryPaths *library = model().host().library())
        library->rebuild();
}
