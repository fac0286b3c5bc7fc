#include "platform/desktop/managed_objects.h"

#include <QDBusError>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

QDBusMessage call() {
    return managedObjectsCall(QStringLiteral("org.example.Disks"), QStringLiteral("/org/example"));
}

TEST(ManagedObjects, AreAskedForWithoutStartingTheService) {
    EXPECT_EQ(call().service().toStdString(), "org.example.Disks");
    EXPECT_EQ(call().path().toStdString(), "/org/example");
    EXPECT_EQ(call().interface().toStdString(), "org.freedesktop.DBus.ObjectManager");
    EXPECT_EQ(call().member().toStdString(), "GetManagedObjects");
    EXPECT_FALSE(call().autoStartService());
}

TEST(ManagedObjects, AreAbsentInAnError) {
    EXPECT_FALSE(parseManagedObjects(call().createErrorReply(QDBusError::NoReply, QStringLiteral("silent"))));
}

TEST(ManagedObjects, AreAbsentInAReplyOfAnotherForm) {
    EXPECT_FALSE(parseManagedObjects(call().createReply()));
    EXPECT_FALSE(parseManagedObjects(call().createReply(QStringLiteral("none"))));
    EXPECT_FALSE(parseManagedObjects(QDBusMessage()));
}

} // namespace
} // namespace tarvo::desktop
