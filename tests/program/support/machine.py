"""A machine with known figures, as the folder that the programs take with --root."""
import os
import threading


class RecordedMachine:
    """One core that is busy for `cpu` of a hundred ticks between two looks, and `memory` per cent used."""

    def __init__(self, folder, cpu=23, memory=48):
        self.folder = folder
        self.cpu = cpu
        self._busy, self._idle = 1000 * cpu, 1000 * (100 - cpu)
        self._ended = threading.Event()
        os.makedirs(os.path.join(folder, "proc", "net"))
        self.write("proc/loadavg", "0.42 0.36 0.30 1/123 4567\n")
        self.write("proc/net/dev", "Inter-|   Receive                |  Transmit\n"
                                   " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets "
                                   "errs drop fifo colls carrier compressed\n")
        self.set_memory(memory)
        self._advance()
        self._ticker = threading.Thread(target=self._run, daemon=True)
        self._ticker.start()

    def write(self, path, text):
        """Writes a file in place: the programs keep it open."""
        handle = os.open(os.path.join(self.folder, path), os.O_WRONLY | os.O_CREAT, 0o644)
        os.pwrite(handle, text.encode(), 0)
        os.ftruncate(handle, len(text.encode()))
        os.close(handle)

    def set_memory(self, percent):
        total = 8_000_000
        free = total * (100 - percent) // 100
        self.write("proc/meminfo", f"MemTotal: {total:>14} kB\nMemFree: {free:>14} kB\nMemAvailable: {free:>14} kB\n"
                                   "Buffers: 0 kB\nCached: 0 kB\nActive: 0 kB\nInactive: 0 kB\nActive(file): 0 kB\n"
                                   "Inactive(file): 0 kB\nShmem: 0 kB\nSReclaimable: 0 kB\nSwapTotal: 0 kB\n"
                                   "SwapFree: 0 kB\nCommitted_AS: 0 kB\n")

    def add_battery(self, percent):
        folder = "sys/class/power_supply/BAT0"
        os.makedirs(os.path.join(self.folder, folder))
        for name, value in {"type": "Battery", "present": 1, "status": "Discharging", "capacity": percent,
                            "energy_full_design": 50_000_000, "energy_full": 48_000_000,
                            "energy_now": 480_000 * percent, "power_now": 9_000_000, "cycle_count": 120}.items():
            self.write(f"{folder}/{name}", f"{value}\n")

    def end(self):
        self._ended.set()
        self._ticker.join()

    def _advance(self):
        self._busy += self.cpu
        self._idle += 100 - self.cpu
        line = f"{self._busy} 0 0 {self._idle} 0 0 0 0 0 0\n"
        self.write("proc/stat", f"cpu  {line}cpu0 {line}ctxt 1\nbtime 1700000000\n")

    # The share stays the same however often it is looked at, as long as something went by in between.
    def _run(self):
        while not self._ended.wait(0.1):
            self._advance()
