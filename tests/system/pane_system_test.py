"""The pane in a real window, on a real bus, with a real agent process."""

import os
import signal
import subprocess
import unittest

import desktop
from desktop import AGENT_NAME, HOST_NAME, SystemTest, wait_until
from gi.repository import GLib


class Settings(SystemTest):
    def test_a_change_reaches_the_agent_and_survives_a_restart_of_both(self):
        self.start()
        self.pane.choose_tab("General")
        for box, key in (("Launch Zarvil at login", "LaunchAtLogin"),
                         ("Quit applications by force", "UseForce"),
                         ("Notify me when the power fails", "ShowFailNotifi")):
            before = self.pane.checked(box)
            self.pane.press(box)
            wait_until(lambda: self.session.stored(key) == (not before), f"{key} is stored")
        self.pane.press("Notify me when the power fails")
        wait_until(lambda: self.session.stored("ShowFailNotifi") == before, "it is taken back")
        shown = {box: self.pane.checked(box) for box in
                 ("Launch Zarvil at login", "Quit applications by force")}
        self.end(self.host)
        self.end(self.agent)
        self.start()
        self.pane.choose_tab("General")
        for box, on in shown.items():
            wait_until(lambda: self.pane.checked(box) == on, f"{box} shows {on} again")

    def test_a_delay_is_stored_in_seconds_and_nonsense_is_refused_with_a_reason(self):
        self.start()
        self.pane.choose_tab("General")
        refusal = "Only a number of 0 or more is taken, such as 1.5. The delay stays as it was."
        for typed, seconds in (("75", 75), ("-1", None), ("letters", None), ("76", 76), ("", None),
                               ("9" * 30, 2**63 - 1)):
            before = self.session.stored("ShutdownDelay")
            self.pane.enter("Shutdown delay", typed)
            refused = seconds is None
            wait_until(lambda: self.pane.showing(refusal) == refused, f"{typed} is judged")
            wait_until(lambda: self.session.stored("ShutdownDelay") ==
                       (before if refused else seconds), f"{typed} is stored if it is a delay")


class Presence(SystemTest):
    def test_a_killed_agent_greys_the_pane_and_the_launch_button_brings_it_back(self):
        self.start()
        self.pane.choose_tab("General")
        wait_until(lambda: self.pane.enabled("Launch Zarvil at login"), "the pane is alive")
        self.pane.press("Launch Zarvil at login")
        wait_until(lambda: self.session.stored("LaunchAtLogin"), "a setting is stored")
        self.agent.kill()
        self.agent.wait()
        wait_until(lambda: self.pane.showing("Zarvil is not running"), "it is said in words")
        self.assertFalse(self.pane.enabled("Launch Zarvil at login"))
        self.pane.press("Launch Zarvil", "push button")
        wait_until(lambda: self.session.owner(AGENT_NAME), "the agent is launched")
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the pane is back")
        wait_until(lambda: self.pane.enabled("Launch Zarvil at login"), "the controls too")
        self.assertTrue(self.pane.checked("Launch Zarvil at login"))

    def test_only_the_agent_can_close_the_host(self):
        self.start()
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the pane is alive")
        self.session.broadcast("ZVQuitPrefs")
        self.session.broadcast("ZVState2", {"state": GLib.Variant("b", True)})
        self.session.tell(self.agent, "state on")
        wait_until(lambda: self.pane.checked("Power protection"), "what the agent said arrived")
        self.assertIsNone(self.host.poll())
        self.session.tell(self.agent, "quitprefs")
        self.assertEqual(self.host.wait(desktop.PATIENCE), -signal.SIGKILL)
        self.assertIsNone(self.agent.poll())

    def test_a_second_start_raises_the_first_and_ends(self):
        self.start()
        wait_until(lambda: self.session.owner(HOST_NAME) == self.host.pid, "the name is owned")
        # Filtered by the bus itself: what arrives was sent by the owner of the name.
        pings = []
        self.session.bus.signal_subscribe(HOST_NAME, AGENT_NAME, "ZVPing", desktop.PATH, None, 0,
                                          lambda *_: pings.append(True))
        wait_until(lambda: pings, "the pane speaks as the owner of the host's name")
        second = self.session.start(desktop.BUILD / "bin/zarvil-preferences", "--root",
                                    self.session.root,
                                    desktop.BUILD / "bin/Zarvil Preferences.prefPane")
        self.assertEqual(second.wait(desktop.PATIENCE), 0)
        self.assertIsNone(self.host.poll())

    def strike_in(self, host, key):
        """Strikes a key in a program's window, once that has the keyboard, and waits for its end."""
        active = ("xdotool", "getactivewindow", "getwindowpid")
        wait_until(lambda: subprocess.run(active, capture_output=True,
                                          text=True).stdout.strip() == str(host.pid), "it is active")
        desktop.Pane.strike(key)
        return host.wait(desktop.PATIENCE)

    def test_the_keyboard_closes_a_window_and_a_bus_that_hangs_keeps_none_waiting(self):
        program = desktop.BUILD / "bin/zarvil-preferences"
        broken = self.session.folder / "Broken.prefPane/Contents"
        broken.mkdir(parents=True)
        (broken / "Info.json").write_text("{")
        failing = self.session.start(program, broken.parent, stderr=subprocess.DEVNULL)
        self.assertEqual(self.strike_in(failing, "Return"), 65)
        address = f"unix:path={self.session.folder}/bus"
        bus = self.session.start("dbus-daemon", "--session", "--nofork", "--print-address",
                                 f"--address={address}", stdout=subprocess.PIPE)
        bus.stdout.readline()
        bus.send_signal(signal.SIGSTOP)
        host = self.session.start(program, desktop.BUNDLE,
                                  env=dict(os.environ, DBUS_SESSION_BUS_ADDRESS=address))
        self.assertEqual(self.strike_in(host, "ctrl+w"), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
