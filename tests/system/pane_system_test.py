"""The pane in a real window, on a real bus, with a real agent process."""

import os
import signal
import subprocess
import unittest

import desktop
from desktop import AGENT_NAME, HOST_NAME, SystemTest, wait_until
from gi.repository import Atspi, GLib


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
        wait_until(lambda: self.pane.page_shows(1), "the last tab is there again")
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


class Assistive(SystemTest):
    # What stands around the tabs and on each, with the setting that pressing it changes.
    AROUND = {("Power protection", "check box"): None, ("Quit Zarvil", "push button"): None,
              ("Choose devices", "link"): None, ("Help", "push button"): None}
    CONTROLS = {
        "General": {
            ("Shutdown delay", "text"): None, ("Delay in minutes", "check box"): None,
            ("Quit applications by force", "check box"): "UseForce",
            ("Test Shutdown", "push button"): None,
            ("Warn me before shutting down", "check box"): "ShutdownMessage",
            ("Notify me when the power fails", "check box"): "ShowFailNotifi",
            ("Tell me when a device is connected", "check box"): "NewDeviceMessage",
            ("Launch Zarvil at login", "check box"): "LaunchAtLogin",
            ("Monochrome icon", "check box"): "StatusIconMono",
            ("Show Zarvil in the status bar", "check box"): "ShowStatusIcon"},
        "Alerts": {
            ("Send an e-mail when the power fails", "check box"): "UseEmailNotifi",
            ("Address", "text"): None, ("What is Pushover?", "link"): None,
            ("Send a push notification when the power fails", "check box"): "UsePushover",
            ("Pushover user ID", "text"): None, ("Pushover device ID", "text"): None,
            ("Send a Test", "push button"): None},
        "Scripts": {
            ("Run these scripts when the power fails", "check box"): "UseScripts",
            ("Title of the new script", "text"): None, ("Create", "push button"): None},
        "About": {
            ("http://www.tessrow.example/", "link"): None, ("Support", "link"): None,
            ("Send feedback", "link"): None, ("Follow us", "link"): None,
            ("Recommend Zarvil", "link"): None,
            ("Check for updates automatically", "check box"): "SUEnableAutomaticChecks",
            ("Check for Updates Now", "push button"): None, ("View Log", "push button"): None,
            ("Uninstall…", "push button"): None}}

    # What is typed into a field and the setting that then holds it.
    ENTERED = {
        "Alerts": (("Address", "me@example.org", "EmailAddress"),
                   ("Pushover user ID", "user", "PushUserId"),
                   ("Pushover device ID", "phone", "PushDeviceId"))}
    # What a press shows; links, log, updates, scripts and uninstalling have tests of their own.
    SHOWN = {
        "General": (("Delay in minutes", "check box",
                     "Minutes from the power failure. Return stores the number."),
                    ("Test Shutdown", "push button", "A test is running. Nothing is shut down.")),
        "Alerts": (("Send a Test", "push button", "Settings are valid!"),),
        "About": (("Help", "push button", "Help: About"),)}

    def operable(self):
        """What shows and takes the keyboard, apart from tabs, lists and the lock."""
        return {(desktop.clear(node.get_name()), node.get_role_name())
                for node in self.pane.shown_things()
                if node.get_state_set().contains(Atspi.StateType.FOCUSABLE)
                and node.get_role_name() not in ("page tab", "page tab list", "list", "filler", "frame")
                and not node.get_name().startswith("Administrator rights: ")}

    def test_every_control_has_its_name_and_role_and_is_pressed_by_name(self):
        self.start()
        # What comes before the settings leaves the icon's color disabled.
        wait_until(lambda: self.pane.enabled("Power protection"), "the settings are there")
        self.tell("push 0")
        self.tell("state on")
        wait_until(lambda: self.pane.checked("Power protection"), "the protection is on")
        for tab, controls in self.CONTROLS.items():
            self.pane.choose_tab(tab)
            for (name, _), key in controls.items():
                if key:
                    before = self.pane.checked(name)
                    self.pane.press(name)
                    wait_until(lambda: self.session.stored(key) == (not before), f"{key} follows")
                    if before:
                        self.pane.press(name)
                        wait_until(lambda: self.pane.checked(name), "it is ticked again")
            for name, text, key in self.ENTERED.get(tab, ()):
                self.pane.enter(name, text)
                wait_until(lambda: self.session.stored(key) == text, f"{key} is stored")
            expected = set(self.AROUND) | set(controls)
            try:
                wait_until(lambda: self.operable() == expected, f"{tab} is complete", 10)
            except AssertionError:
                self.assertEqual(self.operable(), expected)
            if tab == "About":
                self.one_frame_and_what_stands_around()
            for name, role, words in self.SHOWN.get(tab, ()):
                self.pane.press(name, role)
                wait_until(lambda: self.pane.showing(words), f"{name} shows {words}")
        for name in ("Connected", "Watched", "Scripts"):
            self.pane.get(name, "list")
        self.pane.press("Quit Zarvil", "push button")
        self.agent.wait(desktop.PATIENCE)

    def one_frame_and_what_stands_around(self):
        frames = [node.get_name() for node in self.pane.shown_things()
                  if node.get_role_name() == "frame"]
        self.assertEqual(frames, ["Zarvil"])
        for name, role in (("Choose devices", "link"), ("Power protection", "check box")):
            self.pane.press(name, role)
        wait_until(lambda: self.pane.page_shows(0), "the link leads to the devices")
        wait_until(lambda: self.pane.showing("Protection is off"), "the switch has been pressed")
        self.pane.press("Power protection", "check box")
        wait_until(lambda: self.pane.showing("Protection is on"), "and once more")
        self.pane.choose_tab("About")

    def test_what_happens_elsewhere_is_announced(self):
        heard = []
        listener = Atspi.EventListener.new(lambda event: heard.append(event.any_data))
        listener.register("object:announcement")
        self.session.settings_file.parent.mkdir(parents=True)
        self.session.settings_file.write_text('{"UsePushover": true, "PushUserId": "user"}')
        self.start()
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the pane is alive")
        self.tell("plug UPS|Maker|1")
        self.tell("unplug UPS|Maker|1")
        wait_until(lambda: len(heard) >= 2, "the device is announced")
        self.tell("push 1")
        self.pane.choose_tab("Alerts")
        self.pane.press("Send a Test")
        wait_until(lambda: len(heard) >= 3, "the verdict is announced")
        self.agent.kill()
        self.agent.wait()
        wait_until(lambda: len(heard) >= 4, "the loss is announced")
        self.assertEqual(heard, ["Connected: UPS", "Disconnected: UPS",
                                 "Connection timeout! Check your Internet connection!",
                                 "Zarvil is not running"])


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
        self.session.start("xmessage", "-center", "Something else")
        wait_until(lambda: not self.is_active(self.host), "another window has the keyboard")
        second = self.session.start(desktop.BUILD / "bin/zarvil-preferences", "--root",
                                    self.session.root,
                                    desktop.BUILD / "bin/Zarvil Preferences.prefPane")
        self.assertEqual(second.wait(desktop.PATIENCE), 0)
        wait_until(lambda: self.is_active(self.host), "the first has it again")

    @staticmethod
    def is_active(program):
        active = ("xdotool", "getwindowfocus", "getwindowpid")
        pid = subprocess.run(active, capture_output=True, text=True).stdout.strip()
        return pid == str(program.pid)

    def strike_in(self, host, key):
        """Strikes a key in a program's window, once that has the keyboard, and waits for its end."""
        wait_until(lambda: self.is_active(host), "it is active")
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
