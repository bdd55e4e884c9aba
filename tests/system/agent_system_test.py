"""The agent's program, as its operator and other programs meet it."""

import itertools
import json
import os
import subprocess
import unittest

from desktop import AGENT_NAME, BUILD, PATH, PATIENCE, SystemTest, wait_until
from gi.repository import Gio, GLib


class Program(SystemTest):
    def refusal(self, *arguments):
        outcome = subprocess.run([BUILD / "bin/zarvil-agent", *arguments], text=True,
                                 stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE)
        self.assertEqual(outcome.returncode, 1)
        return outcome.stderr

    def test_refuses_bad_arguments_and_to_be_a_second_one(self):
        for arguments in (("--nonsense",), ("extra",), ("--root", "/no/such"),
                          ("--test-duration", "soon")):
            self.assertTrue(self.refusal(*arguments), arguments)
        agent = self.session.start_agent()
        self.assertIn("another agent is running", self.refusal("--devices", "/dev/null"))
        self.assertIsNone(agent.poll())

    def test_outlives_the_end_of_its_input_and_says_what_it_cannot_read_or_open(self):
        self.session.install_opener()
        (self.session.folder / "bin/xdg-open").write_text("#!/bin/sh\nexit 4\n")
        agent = self.session.start_agent("--devices", "missing.json")
        self.assertEqual(agent.stdout.readline(), "ready\n")
        agent.stdin.write("plug A|B|C\nnonsense\nquitp")
        agent.stdin.close()
        self.assertEqual(agent.stdout.readline(), "ok\n")
        self.assertIn("unknown command", agent.stdout.readline())
        self.session.broadcast("ZVViewLog")
        for problem in ("missing.json", "No application opens"):
            wait_until(lambda: problem in self.session.agent_log.read_text(), f"{problem} is told")
        self.assertIsNone(agent.poll())


class WrongAgent:
    """Owns the agent's name in this process, or waits for it, and answers as told: replies maps a
    message's name to what is sent for it, each a name and a payload or payloads to send in turn. It
    dies of a message that it answers with death."""

    def __init__(self, replies, signature="(a{sv})"):
        self.replies, self.signature = replies, signature
        self.bus = Gio.DBusConnection.new_for_address_sync(
            os.environ["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.bus.signal_subscribe(None, AGENT_NAME, None, PATH, None, 0, self.answer)
        self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                           "RequestName", GLib.Variant("(su)", (AGENT_NAME, 0)), None, 0, -1, None)

    def answer(self, _bus, _sender, _path, _interface, name, _payload):
        for reply, info in self.replies.get(name, ()):
            if reply == "death":
                self.replies = {}
                return
            if isinstance(info, itertools.cycle):
                info = next(info)
            payload = GLib.Variant(self.signature, (info,)) if info is not None else None
            self.bus.emit_signal(None, PATH, AGENT_NAME, reply, payload)


class Check(SystemTest):
    def check(self, *options):
        """The status and the rules that are broken."""
        process = self.session.start(BUILD / "bin/zarvil-check-agent", *options,
                                     stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        wait_until(lambda: process.poll() is not None, "the check is over")
        output = process.stdout.read()
        process.stderr.close()
        return process.returncode, [line for line in output.splitlines() if "WRONG" in line]

    def test_finds_nothing_wrong_with_an_agent_that_keeps_the_rules(self):
        self.assertEqual(self.check()[0], 2, "without an agent")
        agent = self.session.start_agent("--test-duration", "300")
        self.session.tell(agent, "save Kept|by|1")
        self.assertEqual(self.check(), (0, []))
        stored = json.loads(self.session.settings_file.read_text())
        self.assertEqual([device["DeviceName"] for device in stored["SavedDevices"]], ["Kept"])
        self.assertEqual(self.check("--all"), (0, []))
        self.assertEqual(agent.wait(PATIENCE), 0, "it was asked to quit")

    def test_names_the_rules_that_wrong_agents_break(self):
        def variant(value):
            if isinstance(value, dict):
                return GLib.Variant("a{sv}", {key: variant(item) for key, item in value.items()})
            if isinstance(value, list):
                return GLib.Variant("av", [variant(item) for item in value])
            return GLib.Variant({bool: "b", int: "x", str: "s"}[type(value)], value)

        def payload(**entries):
            return {key: variant(value) for key, value in entries.items()}

        pong = [("ZVPingTest", None)]
        lists = ("ZVAllSavedDevices", "ZVAllConnectedDevices", "ZVAllDevices")
        nothing = payload(devices=[])
        state = ("ZVState2", payload(state=True))
        device = {"DeviceName": "A", "DeviceVendor": "B", "DeviceSerial": "C"}
        tried = {"DeviceName": "Test device", "DeviceVendor": "zarvil-check-agent",
                 "DeviceSerial": "N/A", "ofTheAgentsOwn": [7, "kept"]}
        wrong = {
            "mute": ({}, "(a{sv})", ["answers ZVPing"]),
            "hasty": ({"ZVPing": pong, "ZVState": [state],
                       "ZVAddedSaveItem": [("ZVNewSavedDevice", payload(device=device))],
                       "ZVPrefsLoaded": [state, *[(name, nothing) for name in lists],
                                         ("ZVSavedPrefs", payload(Testing=True)), ("ZVQuitPrefs", None)]},
                      "(a{sv})", ["in this order", "report back what ZVState", "switches its protection",
                                  "stores every setting", "saves a device", "back what it was told to save",
                                  "by letter case", "no ZVQuitPrefs unasked: ZVQuitPrefs"]),
            "foreign": ({"ZVPing": pong * 2,
                         "ZVPrefsLoaded": [("ZVSavedPrefs", "text"), *[(name, "text") for name in lists],
                                           ("ZVState2", "text")]},
                        "(s)", ["each of many pings once", "the type a{sv}", "the state as a boolean", "devices as records"]),
            "fickle": ({"ZVPing": pong, "ZVNoSuchMessage": [("death", None)],
                        "ZVPrefsLoaded": [
                            ("ZVSavedPrefs", itertools.cycle([payload(ShutdownDelay="1"), payload(ShutdownDelay="2")])),
                            ("ZVAllSavedDevices", payload(devices=[tried])),
                            ("ZVAllConnectedDevices", itertools.cycle([nothing, payload(devices=[device])])),
                            ("ZVAllDevices", nothing), state]},
                       "(a{sv})", ["waits in line", "ZVPrefsLoaded alike", "setting in its type: ShutdownDelay",
                                   "same devices as connected", "forgets a device", "while it is saved too",
                                   "bears messages", "no value of a wrong type"]),
            "idle": ({"ZVPing": pong, "ZVPrefsLoaded": [state]}, "(a{sv})",
                     ["reports Testing", "ends a test", "ends a Pushover check", "quits on ZVQuit"]),
        }
        for kind, (replies, signature, broken) in wrong.items():
            agents = [WrongAgent(told, signature) for told in (replies, {})[:1 + (kind == "fickle")]]
            try:
                status, rules = self.check(*("--all", "--patience", "0")[:3 * (kind == "idle")])
            finally:  # whoever owns the name at the session's end is killed
                for agent in reversed(agents):
                    agent.bus.close_sync()
            self.assertEqual(status, 1, kind)
            for rule in broken:
                self.assertTrue(any(rule in line for line in rules), f"{kind}: {rule} not in {rules}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
