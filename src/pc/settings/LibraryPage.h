// The page "Library": the folders of the media library. Without a library it says so. GUI thread.
#pragma once

#include "SettingsPageWidget.h"

#include <array>
#include <functional>

class QListWidget;

class LibraryPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    // A question with one answer; true when it was given.
    using Ask = std::function<bool(QWidget *window, const QString &text, const QString &answer)>;

    explicit LibraryPage(SettingsModel &model, Ask ask, QWidget *parent = nullptr);
    ~LibraryPage() override;

    void retranslate() override;

public slots:
    void slot_addLibraryPathClicked();
    void slot_updateLibrary();
    void slot_rebuildLibrary();

private:
    struct Folders {
        ILibraryPaths::Kind kind{ILibraryPaths::Kind::Video};
        QListWidget *list{nullptr};
        QPushButton *add{nullptr};
        QPushButton *remove{nullptr};
    };

    void addFolders(std::size_t place, ILibraryPaths::Kind kind, const char *title);
    void addFolder(const Folders &folders);
    void removeFolder(const Folders &folders);
    void follow();

    Ask m_ask;
    std::array<Folders, 2> m_folders;
    QPushButton *m_update;
    QPushButton *m_rebuild;
    QLabel *m_missing;
};
