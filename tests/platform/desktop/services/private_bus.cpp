#include "private_bus.h"

#include <QFile>
#include <QUuid>

namespace tarvo {
namespace {

constexpr int limitMilliseconds = 20'000;

constexpr const char* configuration =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
  "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus() {
    QFile file(folder_.filePath("bus.conf"));
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write(QString::fromLatin1(configuration).arg(folder_.path()).toUtf8());
    file.close();
    daemon_.setStandardErrorFile(QProcess::nullDevice());
    daemon_.start("dbus-daemon",
                  {"--config-file=" + file.fileName(), "--print-address", "--nofork", "--nopidfile"});
    if (!daemon_.waitForReadyRead(limitMilliseconds)) return;
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
}

PrivateBus::~PrivateBus() {
    for (const QString& name : connections_)
        QDBusConnection::disconnectFromBus(name);
    daemon_.terminate();
    daemon_.waitForFinished(limitMilliseconds);
}

QDBusConnection PrivateBus::connect() {
    connections_ += QUuid::createUuid().toString();
    return QDBusConnection::connectToBus(address_, connections_.last());
}

} // namespace tarvo
