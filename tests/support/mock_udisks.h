#pragma once

#include "support/mock_service.h"

#include <QStringList>

namespace tarvo {

/// UDisks with what the test says that it holds.
class MockUDisks : public MockService {
public:
    explicit MockUDisks(TestBus& bus) : MockService(bus, QStringList{name, path, name}, name) {}

    /// `objects` is a dictionary in Python: interfaces and their properties by object path.
    void hold(const char* objects) {
        call(path, mockInterface, "AddMethod",
             {"org.freedesktop.DBus.ObjectManager", "GetManagedObjects", "", "a{oa{sa{sv}}}",
              QStringLiteral("ret = ") + objects});
    }

private:
    static constexpr const char* name = "org.freedesktop.UDisks2";
    static constexpr const char* path = "/org/freedesktop/UDisks2";
};

} // namespace tarvo
