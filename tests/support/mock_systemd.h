#pragma once

#include "support/mock_service.h"

#include <string>

namespace tarvo {

/// systemd as python3-dbusmock plays it, as far as services that make backups are asked for.
class MockSystemd : public MockService {
public:
    explicit MockSystemd(TestBus& bus) : MockService(bus, "systemd", "org.freedesktop.systemd1") {}

    /// The units are listed by the patterns of the call, each under its own path.
    void listUnits() {
        call(manager, mockInterface, "AddMethod",
             {"org.freedesktop.systemd1.Manager", "ListUnitsByPatterns", "asas", "a(ssssssouso)",
              // Loops only: what a nested scope would see is not there.
              "import fnmatch\n"
              "ret = []\n"
              "for name, path in self.units.items():\n"
              "    state = objects[path].props['org.freedesktop.systemd1.Unit']\n"
              "    for pattern in args[1]:\n"
              "        if not fnmatch.fnmatch(name, pattern): continue\n"
              "        ret.append((name, 'A unit', 'loaded', state['ActiveState'], state['SubState'], '',\n"
              "                    dbus.ObjectPath(path), dbus.UInt32(0), '', dbus.ObjectPath('/')))\n"
              "        break\n"});
    }
    /// `endedAt` in microseconds since the epoch, 0: it never ran.
    void addUnit(const char* name, const char* active, const char* sub) {
        call(manager, mockInterface, "AddMockUnit", {name});
        call(path(name), mockInterface, "UpdateProperties", {unit, QVariantMap{{"ActiveState", active}}});
        call(path(name), mockInterface, "AddProperties", {unit, QVariantMap{{"SubState", sub}}});
    }
    void addService(const char* name, const char* active, const char* sub, const char* type,
                    const char* result, qulonglong endedAt) {
        addUnit(name, active, sub);
        call(path(name), mockInterface, "AddProperties",
             {unit, QVariantMap{{"InactiveEnterTimestamp", endedAt}}});
        call(path(name), mockInterface, "AddProperties",
             {"org.freedesktop.systemd1.Service", QVariantMap{{"Type", type}, {"Result", result}}});
    }
    void setState(const char* name, const char* active, const char* sub) {
        call(path(name), mockInterface, "UpdateProperties",
             {unit, QVariantMap{{"ActiveState", active}, {"SubState", sub}}});
    }

private:
    static constexpr const char* manager = "/org/freedesktop/systemd1";
    static constexpr const char* unit = "org.freedesktop.systemd1.Unit";

    static std::string path(std::string name) {
        for (char& character : name) {
            if (character == '.' || character == '-') character = '_';
        }
        return std::string(manager) + "/unit/" + name;
    }
};

} // namespace tarvo
