// The two menus of the queue's panel, as rows of a table.
//
// Owns the menu that was built last; what is chosen arrives as a signal. GUI thread.
#pragma once

#include <QMenu>
#include <QObject>

#include <memory>

class QueueMenus final : public QObject {
    Q_OBJECT

public:
    enum class Action {
        AddFile,
        AddFolder,
        Remove,
        RemoveInvalid,
        RemoveAll,
        OpenContainingFolder,
        Sort, // number: PlayQueueModel::SortType
        Loop  // number: QueueOrder::LoopType
    };
    Q_ENUM(Action)

    struct State {
        bool hasSources{false};
        bool hasSelection{false};
        // The selected source lies on this computer.
        bool hasFolder{false};
        int sortType{0};
        int loopType{0};
    };

    explicit QueueMenus(QObject *parent = nullptr);
    ~QueueMenus() override;

    [[nodiscard]] QMenu *buildContext(const State &state);
    [[nodiscard]] QMenu *buildOption(const State &state);
    [[nodiscard]] QMenu *buildAdd();

signals:
    void chosen(QueueMenus::Action action, int number);

private:
    struct Row;
    QMenu *build(const Row *first, const Row *end, const State &state);

    std::unique_ptr<QMenu> m_menu;
};
