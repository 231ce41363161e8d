// The panel of the playlist on a queue whose files are there unless their path says "gone", and hands for it.
#pragma once

#include "TestSettings.h"

#include "queue/NormalPlaylistView.h"
#include "queue/QueueListView.h"

#include "support/Eventually.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

[[nodiscard]] inline PlayerDisc discOfThree()
{
    PlayerDisc disc;
    disc.isValid = true;
    disc.mainTitle = 1;
    for (int number = 1; number <= 3; ++number)
        disc.titles.append({number, number * 60000, 1, {}});
    return disc;
}

class Panels : public testing::Test {
protected:
    Panels()
    {
        NormalPlaylistView::Services services;
        services.queue.exists = [](const QString &path) { return !path.contains("gone"); };
        services.queue.titles = [](const QString &, int) { return discOfThree(); };
        services.chooseFiles = [this](QWidget *, const QString &folder) {
            askedFolder = folder;
            return chosenFiles;
        };
        services.chooseFolder = [this](QWidget *, const QString &folder) {
            askedFolder = folder;
            return chosenFolder;
        };
        services.showInFolder = [this](const QString &path) { shownFolder = path; };
        panel = std::make_unique<NormalPlaylistView>(*settings, services);
        panel->resize(372, 600);
    }
    void open()
    {
        panel->open();
        ASSERT_EVENTUALLY(panel->cardRect().left() == 0);
    }
    void add(const QStringList &paths)
    {
        const int before = panel->queue()->model()->sourceCount();
        panel->addSources(paths);
        ASSERT_EVENTUALLY(panel->queue()->model()->sourceCount() == before + paths.size());
    }
    [[nodiscard]] QModelIndex row(int number) const { return panel->queue()->model()->index(number); }
    [[nodiscard]] QPoint at(int number) const { return panel->list()->visualRect(row(number)).center(); }
    void click(int number, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(panel->list()->viewport(), Qt::LeftButton, modifiers, at(number));
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (int i = 0; i < panel->queue()->model()->sourceCount(); ++i)
            result << row(i).data().toString();
        return result;
    }
    bool key(int code, const QString &text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, code, modifiers, text);
        return panel->handleKey(&event);
    }
    // The actions of a menu by their texts; a line is an empty text.
    static QStringList texts(const QMenu *menu)
    {
        QStringList result;
        for (const QAction *action : menu->actions())
            result << action->text();
        return result;
    }
    static QAction *entry(const QMenu *menu, const QString &text)
    {
        for (QAction *action : menu->actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    void drop(QWidget *on, const QMimeData *data, const QPoint &at)
    {
        QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(on, &enter);
        QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(on, &move);
        QDropEvent dropped(at, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(on, &dropped);
        wasTaken = enter.isAccepted() && dropped.isAccepted();
    }

    TestSettings settings;
    QStringList chosenFiles;
    QString chosenFolder;
    QString askedFolder;
    QString shownFolder;
    bool wasTaken{false};
    std::unique_ptr<NormalPlaylistView> panel;
};
