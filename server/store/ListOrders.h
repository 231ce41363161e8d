// The orders of the lists that were asked for last: for each the ids in their order, so that a part of a list
// costs the same wherever it lies. An order is good for one version of the data and made anew at the first
// request after a change. Any thread; requests for an order that is being made wait for it instead of making
// it twice.
#pragma once

#include <QString>
#include <QVector>

#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>

class ListOrders final {
public:
    using Ids = std::shared_ptr<const QVector<int>>;
    // Nothing when the database did not answer; that is not kept.
    using Maker = std::function<std::optional<QVector<int>>()>;

    explicit ListOrders(int capacity = kCapacity);

    // Never null.
    [[nodiscard]] Ids ids(const QString &key, qint64 version, const Maker &make);

private:
    static constexpr int kCapacity = 16;

    struct Order {
        QString key;
        std::mutex mutex; // guards what follows
        qint64 version{-1};
        Ids ids;
    };

    [[nodiscard]] std::shared_ptr<Order> order(const QString &key);

    const int m_capacity;
    std::mutex m_mutex;
    std::list<std::shared_ptr<Order>> m_orders; // the last used first
};
