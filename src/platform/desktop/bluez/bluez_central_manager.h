#pragma once

#include "platform/bluetooth.h"
#include "platform/desktop/bluez/bluez_objects.h"
#include "platform/desktop/bluez/bluez_paired_devices.h"
#include "platform/dispatcher.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QDBusMessage;

namespace tarvo::desktop {

/// Charges of accessories that the kernel's input drivers know. May wait for an accessory: not on the main
/// thread.
using ReadAccessoryPower = std::function<std::vector<AccessoryPower>()>;

/// Accessories as BlueZ knows them. BlueZ itself keeps the connections and reads the Battery Service, so
/// connecting, discovering and reading are answered from what it holds, in the next turn of the loop, and
/// cancelling leaves the user's device connected. What BlueZ holds is fetched once and then followed by its
/// signals. An accessory of which BlueZ knows no charge is read through the kernel's input driver where that
/// knows one.
class BluezCentralManager : public QObject, public BluetoothCentralManager {
    Q_OBJECT
public:
    /// `readAccessoryPower` may be empty. The dispatcher and the delegate outlive this.
    BluezCentralManager(ConnectBus connect, ReadAccessoryPower readAccessoryPower, Dispatcher& dispatcher,
                        BluetoothCentralDelegate& delegate);
    ~BluezCentralManager() override;

    BluetoothState state() const override { return state_; }
    std::vector<BluetoothPeripheral> connectedPeripherals(std::string_view service) override;
    void connect(const BluetoothPeripheral& peripheral) override;
    void cancelConnection(const BluetoothPeripheral& peripheral) override;
    void discoverServices(const BluetoothPeripheral& peripheral,
                          std::span<const std::string_view> services) override;
    void discoverCharacteristics(const BluetoothPeripheral& peripheral, std::string_view service,
                                 std::span<const std::string_view> characteristics) override;
    void readValue(const BluetoothPeripheral& peripheral, std::string_view characteristic) override;

private slots:
    void interfacesAdded(const QDBusMessage& message);
    void interfacesRemoved(const QDBusMessage& message);
    void propertiesChanged(const QDBusMessage& message);
    void nameOwnerChanged(const QDBusMessage& message);

private:
    using Powers = std::vector<AccessoryPower>;

    void start(const QDBusConnection& bus);
    void followSignals();
    void askForOwner();
    void askForObjects();
    void loseObjects();
    void updateState();
    bool isFromBluez(const QDBusMessage& message, const QString& signature) const;

    /// Runs the task in a later turn of the loop, unless this is gone by then.
    void later(std::function<void()> task);
    /// Runs `work` in the background and `then` on the main thread, unless this is gone by then.
    template <typename Work, typename Then>
    void inBackground(Work work, Then then);
    void readPowers(std::function<void()> then);

    const BluezDevice* connectedDevice(const BluetoothPeripheral& peripheral) const;
    std::optional<std::uint8_t> percentOf(const BluezDevice& device) const;
    void answerValue(const BluetoothPeripheral& peripheral, const std::string& characteristic);

    ReadAccessoryPower readAccessoryPower_;
    Dispatcher& dispatcher_;
    BluetoothCentralDelegate& delegate_;
    std::shared_ptr<int> alive_ = std::make_shared<int>(); ///< expires with this
    std::optional<QDBusConnection> bus_;
    QString owner_; ///< BlueZ's own name on the bus
    BluezObjects objects_;
    bool hasObjects_ = false;
    Powers powers_;
    BluetoothState state_ = BluetoothState::unknown;
};

/// A UUID for the object path of a device, the same for the same path.
std::string peripheralIdentifier(const std::string& objectPath);

} // namespace tarvo::desktop
