#pragma once

#include "support/mock_service.h"

#include <QStringList>

namespace tarvo {

/// snapper's daemon with one configuration, whose snapshots may be listed, and one whose may not.
class MockSnapper : public MockService {
public:
    explicit MockSnapper(TestBus& bus)
        : MockService(bus, QStringList{name, "/org/opensuse/Snapper", name}, name) {}

    void setUp() {
        addMethod("ListConfigs", "", "a(ssa{ss})",
                  "ret = [('root', '/', {'ALLOW_USERS': 'somebody \"else\"'}), ('data', '/data', {})]");
    }
    /// Seconds since the epoch.
    void setSnapshots(const char* first, const char* second) {
        const auto row = [](const char* number, const char* date) {
            return QStringLiteral("(dbus.UInt32(%1), dbus.UInt16(0), dbus.UInt32(0), dbus.Int64(%2), "
                                  "dbus.UInt32(0), 'before \\\"it\\\"\\n', 'number', {'important': 'yes'})")
                .arg(number, date);
        };
        const auto code =
            QStringLiteral("if args[0] != 'root':\n"
                           "    raise dbus.exceptions.DBusException('no', name='error.no_permissions')\n"
                           "ret = [%1, %2, %3]")
                .arg(row("0", "-1"), row("1", first), row("2", second));
        addMethod("ListSnapshots", "s", "a(uquxussa{ss})", code);
    }

private:
    static constexpr const char* name = "org.opensuse.Snapper";

    void addMethod(const char* method, const char* takes, const char* gives, const QString& code) {
        call("/org/opensuse/Snapper", mockInterface, "AddMethod", {name, method, takes, gives, code});
    }
};

} // namespace tarvo
