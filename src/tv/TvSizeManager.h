// Design sizes that several views of TV mode share. Each call scales anew, so that the values follow a change
// of screen. One object a process, GUI thread.
#pragma once

#include "core/Singleton.h"

#include <QMargins>
#include <QObject>
#include <QSize>

class TvSizeManager final : public QObject, public Singleton<TvSizeManager> {
    Q_OBJECT
public:
    // Start screen
    [[nodiscard]] int startTopBarHeight() const;
    [[nodiscard]] int startBottomBarHeight() const;
    [[nodiscard]] QSize mainMenuItemSize() const;
    [[nodiscard]] QSize fileItemSize() const;
    [[nodiscard]] QSize historyItemSize(bool hasRightMargin) const;
    [[nodiscard]] QMargins historyItemMargins(bool hasRightMargin) const;
    [[nodiscard]] QMargins historyTextMargins(bool hasRightMargin) const;

    // Playing menu
    [[nodiscard]] int playMenuLeftListWidth() const;
    [[nodiscard]] int playMenuRightListMargin() const;
    [[nodiscard]] int playMenuRightListWidth() const;
    [[nodiscard]] QSize playMenuItemSize() const;
    [[nodiscard]] int playMenuRowHeight() const;
    [[nodiscard]] int playMenuTopRowHeight() const;
    void setPlayMenuRightRows(int rows) { m_rightRows = rows; }
    // Height of the right-hand list when it opens at this row of the left-hand one.
    [[nodiscard]] int playMenuRightListHeight(int row) const;

    // Settings
    [[nodiscard]] int settingTitleHeight() const;
    [[nodiscard]] int settingRowHeight() const;
    [[nodiscard]] int settingGap() const;
    [[nodiscard]] int settingMargin() const;

    // Preview
    [[nodiscard]] QMargins previewItemMargins() const;
    [[nodiscard]] QMargins previewPictureMargins() const;

private:
    friend class Singleton<TvSizeManager>;
    TvSizeManager() = default;

    int m_rightRows{0};
};
