#include "ListOrders.h"

#include <algorithm>

ListOrders::ListOrders(int capacity)
    : m_capacity(capacity)
{
}

std::shared_ptr<ListOrders::Order> ListOrders::order(const QString &key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = std::find_if(m_orders.begin(), m_orders.end(),
                                    [&key](const auto &candidate) { return candidate->key == key; });
    if (known != m_orders.end()) {
        m_orders.splice(m_orders.begin(), m_orders, known);
        return m_orders.front();
    }
    m_orders.push_front(std::make_shared<Order>());
    m_orders.front()->key = key;
    if (static_cast<int>(m_orders.size()) > m_capacity)
        m_orders.pop_back();
    return m_orders.front();
}

ListOrders::Ids ListOrders::ids(const QString &key, qint64 version, const Maker &make)
{
    const std::shared_ptr<Order> wanted = order(key);
    const std::lock_guard<std::mutex> lock(wanted->mutex);
    if (wanted->ids && wanted->version == version)
        return wanted->ids;
    const std::optional<QVector<int>> made = make();
    if (!made)
        return std::make_shared<const QVector<int>>();
    wanted->version = version;
    wanted->ids = std::make_shared<const QVector<int>>(*made);
    return wanted->ids;
}
