"""Devices and alerts in a real window, on a real bus, with a real agent process."""

import unittest

from desktop import Atspi, SystemTest, wait_until

UPS = "Back-UPS ES 700|American Power|3B15"
EATON = "Eaton 5E|EATON|G0A1"
NAMELESS = "Smart-UPS|CyberPower|"  # without a serial number


def shown(device):
    """A device as the list speaks it."""
    name, vendor, serial = device.split("|")
    return f"{name}, {vendor}, {serial or 'No serial number'}"


class Devices(SystemTest):
    def start(self):
        super().start()
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the pane is alive")

    def lists(self):
        return self.pane.rows("Connected"), self.pane.rows("Watched")

    def expect(self, connected=(), watched=()):
        wanted = ([(shown(device), False) for device in connected],
                  [(shown(device), True) for device in watched])
        try:
            wait_until(lambda: self.lists() == wanted, "the lists are as they should be")
        except AssertionError:
            self.assertEqual(self.lists(), wanted)

    def toggle(self, mnemonic, row):
        """Toggles a row's box with the keyboard alone."""
        self.pane.strike(mnemonic, "Home", *["Down"] * row, "space")

    def saved(self):
        return [record["DeviceName"] for record in self.session.stored("SavedDevices") or []]

    def restart_agent(self):
        self.agent.kill()
        self.agent.wait()
        wait_until(lambda: self.pane.showing("Zarvil is not running"), "the loss is noticed")
        self.agent = self.session.start_agent()
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the agent is noticed")

    def test_a_device_is_watched_over_restarts_and_forgotten(self):
        self.start()
        self.expect()
        for device in (UPS, EATON, NAMELESS):
            self.tell(f"plug {device}")
        self.expect(connected=(UPS, EATON, NAMELESS))
        self.toggle("alt+c", 1)
        self.expect(connected=(UPS, NAMELESS), watched=(EATON,))
        wait_until(lambda: self.saved() == ["Eaton 5E"], "it is stored")
        self.tell(f"unplug {EATON}")
        self.tell(f"unplug {UPS}")
        self.expect(connected=(NAMELESS,), watched=(EATON,))

        self.session.set_devices(EATON, UPS)
        self.restart_agent()
        self.expect(connected=(UPS,), watched=(EATON,))
        self.pane.strike("alt+w")
        wait_until(lambda: self.pane.has(shown(EATON), Atspi.StateType.FOCUSED), "its row is told")
        # What an assistive program does with a row is what the user's own click does.
        self.pane.press(shown(EATON), "list item")
        self.expect(connected=(UPS, EATON))
        wait_until(lambda: not self.saved(), "it is forgotten")

    def test_the_lists_are_refilled_and_not_doubled(self):
        self.session.set_devices(UPS, EATON, EATON)
        self.start()
        self.tell(f"save {UPS}")
        self.expect(connected=(EATON, EATON), watched=(UPS,))
        for _ in range(2):
            wait_until(lambda: self.saved(), "the agent has written")
            self.restart_agent()
            self.expect(connected=(EATON, EATON), watched=(UPS,))
        self.tell(f"unplug {EATON}")
        self.expect(connected=(EATON,), watched=(UPS,))


class Alerts(SystemTest):
    USER, DEVICE, TEST = "Pushover user ID", "Pushover device ID", "Send a Test"
    SWITCH = "Send a push notification when the power fails"
    GREEN, RED = (26, 179, 26), (255, 26, 26)

    def start(self):
        super().start()
        self.pane.choose_tab("Alerts")

    def shows_color(self, label, color):
        return any(all(abs(is_ - wanted) <= 2 for is_, wanted in zip(pixel, color))
                   for pixel in self.pane.pixels(label))

    def test_a_verdict_of_a_push_check_is_told_and_acted_upon(self):
        self.start()
        self.pane.press(self.SWITCH)
        wait_until(lambda: self.session.stored("UsePushover"), "the switch is stored")
        for code, text, color, kept in (
                (0, "Settings are valid!", self.GREEN, True),
                (2, "Invalid settings! Check your User ID and Device ID(if any)", self.RED, False)):
            with self.subTest(code=code):
                self.check_verdict(code, text, color, kept)

    def check_verdict(self, code, text, color, kept):
        self.tell(f"push {code}")
        self.pane.enter(self.USER, f"user{code}")
        self.pane.enter(self.DEVICE, f"device{code}")
        ids = (f"user{code}", f"device{code}")
        wait_until(lambda: self.stored_ids() == ids, "the IDs are stored")
        # Late enough for the state of a check under way to be seen, where nothing has to be looked
        # for, and early enough for the agent to count as alive.
        self.tell("late 1500")
        parts = [self.pane.get(name) for name in (self.USER, self.TEST)]
        self.pane.press(self.TEST, "push button")
        wait_until(lambda: not any(part.get_state_set().contains(Atspi.StateType.SENSITIVE)
                                   for part in parts), "the check is under way")
        wait_until(lambda: self.pane.showing(text), f"the verdict is {text}")
        self.tell("late 0")
        for name in (self.USER, self.DEVICE, self.TEST):
            self.assertTrue(self.pane.enabled(name), name)
        # The box fades in.
        wait_until(lambda: self.shows_color(text, color), "the verdict has its color")
        wait_until(lambda: self.stored_ids() == (ids if kept else ("", "")), "the IDs are right")
        self.assertEqual((self.pane.text(self.USER), self.pane.text(self.DEVICE)), ids)

    def stored_ids(self):
        return self.session.stored("PushUserId"), self.session.stored("PushDeviceId")

    def test_only_a_complete_address_is_stored_and_the_field_keeps_any(self):
        self.start()
        for address, valid in (("me.too+ups%1@mail.example.org", True), ("me@example", False),
                               ("me@example.museum", False), ("OTHER@EXAMPLE.COM", True)):
            before = self.session.stored("EmailAddress")
            self.pane.enter("Address", address)
            # A switch sent behind the address: what is stored with it was decided on before.
            on = not self.session.stored("UseEmailNotifi")
            self.pane.press("Send an e-mail when the power fails")
            wait_until(lambda: bool(self.session.stored("UseEmailNotifi")) == on, "it is stored")
            self.assertEqual(self.session.stored("EmailAddress"), address if valid else before)
            self.assertEqual(self.pane.text("Address"), address)


if __name__ == "__main__":
    unittest.main(verbosity=2)
