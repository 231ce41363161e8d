#include "core/CommunicationManager.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

TEST(CommunicationManagerTest, IsOneObjectWhoseSignalsMayCrossThreads)
{
    CommunicationManager *hub = CommunicationManager::instance();
    EXPECT_EQ(hub, CommunicationManager::instance());
    QSignalSpy status(hub, &CommunicationManager::SIG_updateStatusIsChanged);
    QSignalSpy message(hub, &CommunicationManager::SIG_sendMsgToUpdate);
    QSignalSpy picture(hub, &CommunicationManager::SIG_sendChangeBkImg);
    ASSERT_TRUE(status.isValid() && message.isValid() && picture.isValid());
    emit hub->SIG_updateStatusIsChanged(UpdateStatus::UpToDate);
    emit hub->SIG_sendMsgToUpdate(SendMsgType::Close);
    emit hub->SIG_sendChangeBkImg("/a.png");
    EXPECT_EQ(status[0][0].value<UpdateStatus>(), UpdateStatus::UpToDate);
    EXPECT_EQ(message[0][0].value<SendMsgType>(), SendMsgType::Close);
    EXPECT_EQ(picture[0][0].toString(), "/a.png");
    EXPECT_NE(QMetaType::type("UpdateStatus"), QMetaType::UnknownType) << "for queued connections";
    EXPECT_NE(QMetaType::type("SendMsgType"), QMetaType::UnknownType);
}

} // namespace
