#include "PlayOrder.h"

#include "QPlayer.h"

#include <QDebug>

namespace PlayRunner {

void close(QPlayer &player)
{
    player.stop();
}

void open(QPlayer &player, const PlayOrder &order)
{
    player.setSource(order.path);
    player.setSourceType(order.itemType);
    player.setPreferredLanguages(order.audioLanguages, order.subtitleLanguages);
    player.setTitle(order.cueTitle >= 0 ? order.cueTitle : order.title);
    qInfo().noquote() << "[PlaySource]:" << order.path;
    if (order.title < 0)
        player.openFile(order.startSeconds);
    else
        player.openFileWithStreams(-1);
    qInfo() << "[PlaySource]: Play operate completed";
}

} // namespace PlayRunner
