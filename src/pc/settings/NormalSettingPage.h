// The settings dialog of PC mode: a list of pages on the left, the page on the right.
//
// Shows the values of a SettingsModel, which it owns: the store is read when it opens and written at OK
// alone. Pages are made when they are first looked at. Can be opened as often as wished; store and host
// outlive it. GUI thread.
#pragma once

#include "SettingsModel.h"

#include "core/ILanguageBase.h"
#include "dialogs/NormalDialogFrame.h"

#include <QModelIndex>

#include <array>
#include <functional>

class QListWidget;
class QScrollArea;
class QStackedWidget;
class SettingsPageWidget;

class NormalSettingPage final : public NormalDialogFrame, public ILanguageBase {
    Q_OBJECT

public:
    // How the user is told and asked; message boxes by default.
    struct Boxes {
        std::function<void(QWidget *window, const QString &text)> tell;
        std::function<bool(QWidget *window, const QString &text, const QString &answer)> ask;

        [[nodiscard]] static Boxes ofProgram();
    };

    NormalSettingPage(SettingsManager &store, ISettingsHost &host, QWidget *parent = nullptr,
                      Boxes boxes = Boxes::ofProgram(), FolderProbe *folders = nullptr);
    ~NormalSettingPage() override;

    // The page that the next opening shows.
    void setStartPage(SettingsPageId page) { m_startPage = page; }
    // Reads the store into the pages and shows the start page, without running.
    void prepare();

    [[nodiscard]] SettingsModel &model() { return *m_model; }
    [[nodiscard]] SettingsPageId currentPage() const;
    // The widget of a page; made when it was not looked at yet.
    [[nodiscard]] SettingsPageWidget *page(SettingsPageId page);
    [[nodiscard]] QPushButton *okButton() const { return m_ok; }
    [[nodiscard]] QPushButton *defaultButton() const { return m_default; }
    [[nodiscard]] QPushButton *cancelButton() const { return m_cancel; }

    void retranslate() override;

public slots:
    int exec() override;
    void slot_close() override;
    void slot_setCurrentTabItem(const QModelIndex &index);
    void slot_changeTabPage(int nIndex);
    void slot_closeClicked();
    void slot_cancelClicked();
    void slot_okClicked();
    void slot_defaultClicked();
    // The engine has found other devices.
    void slot_audioDevicesChanged();

signals:
    // "Enable the library for adult contents" was changed and stored.
    void sig_adultLibraryStateChanged();
    // After everything is stored: the keys that were written, in their order.
    void sig_settingsSaved(const QStringList &keys);

protected:
    void fit() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeParts();
    void onChecked(bool isGood);
    void store();
    void stepPage(int by);
    void orderFocus();
    void setBusy(bool isBusy);
    [[nodiscard]] SettingsPageWidget *makePage(SettingsPageId page);

    SettingsManager &m_store;
    Boxes m_boxes;
    SettingsModel *m_model;
    SettingsPageId m_startPage{SettingsPageId::General};
    QListWidget *m_list{nullptr};
    QStackedWidget *m_stack{nullptr};
    std::array<QScrollArea *, SettingsPageCount> m_frames{};
    std::array<SettingsPageWidget *, SettingsPageCount> m_pages{};
    QPushButton *m_default{nullptr};
    QPushButton *m_cancel{nullptr};
    QPushButton *m_ok{nullptr};
};
