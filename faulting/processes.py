"""Agents, buses and hosts that die, hang, lie or shout."""

import collections
import os
import random
import signal
import subprocess
import time

from common import (AGENT_NAME, BOXES, BUILD, HOST_NAME, GLib, PATH, PlayedAgent, Run, connection, desktop,
                    kilobytes, main, messages, times, turn, wait_until)

chance = random.Random(13)


def expect_agreement(run):
    """What the boxes show is what the agent has stored."""
    for box, key in BOXES.items():
        for _ in range(2):
            before = run.checked(box)
            run.pane.press(box)
            wait_until(lambda: run.session.stored(key) == (not before), f"{key} is stored")
            wait_until(lambda: run.checked(box) != before, f"{box} shows it")


def expect_one_message_a_change(run):
    sent = run.from_host("ZVPrefsChanged")
    for payload in sent:
        assert set(payload) == {"prefKey", "prefObj"} and isinstance(payload["prefObj"], bool), payload
    return len(sent)


def agent_killed():
    count = times(100)
    with Run() as run:
        agent = run.session.start_agent()
        run.start_host()
        run.wait_for_agent()
        run.pane.choose_tab("General")
        clicks = 0
        before = kilobytes(run.host.pid)
        for _ in range(count):
            clicks += sum(run.click(box) for box in chance.sample(list(BOXES), 3))
            turn(chance.uniform(0, 0.2))
            agent.kill()
            clicks += sum(run.click(box) for box in chance.sample(list(BOXES), 2))
            agent.wait()
            run.session.processes.remove(agent)
            for pipe in (agent.stdin, agent.stdout):
                pipe.close()
            wait_until(lambda: not run.session.owner(AGENT_NAME), "the bus forgets the agent")
            agent = run.session.start_agent()
            run.alive()
        run.wait_for_agent()
        expect_agreement(run)
        sent = expect_one_message_a_change(run)
        assert sent <= clicks + 2 * len(BOXES), f"{sent} messages of {clicks} clicks"
        return (f"{count} kills, {clicks} clicks, {sent} settings sent, none twice; "
                f"{kilobytes(run.host.pid) - before:+} KiB")


def agent_frozen():
    count = times(20)
    with Run() as run:
        agent = run.session.start_agent()
        run.start_host()
        run.wait_for_agent()
        run.pane.choose_tab("General")
        for number in range(count):
            agent.send_signal(signal.SIGSTOP)
            # The last of them stays as it is without an agent.
            box = list(BOXES)[number % (len(BOXES) - 1)]
            clicked = run.checked(box)
            run.click(box)
            wait_until(lambda: run.pane.showing("Zarvil is not running"), "the silence is noticed")
            wait_until(lambda: not run.pane.enabled(box), "no control takes clicks for an agent that hangs")
            agent.send_signal(signal.SIGCONT)
            run.wait_for_agent()
            wait_until(lambda: run.session.stored(BOXES[box]) == (not clicked),
                       "what was clicked just before is not lost")
            wait_until(lambda: run.checked(box) != clicked, "and is shown")
        expect_agreement(run)
        run.alive()
        return f"{count} times, each noticed, each click during it stored after the thaw"


def bus_restarted():
    """The bus of host and agent alone, so nobody but the keyboard reaches the pane."""
    count = times(20)
    with Run() as run:
        session, outer = run.session, run.session.bus
        address = f"unix:path={session.folder}/bus"
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = address

        def start_bus():
            (session.folder / "bus").unlink(missing_ok=True)
            daemon = session.start("dbus-daemon", "--session", "--nofork", "--print-address",
                                   f"--address={address}", stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
            daemon.stdout.readline()
            session.bus = connection()
            run.listen()
            for name in wait_for:
                wait_until(lambda: session.owner(name), f"{name} is owned")
            if HOST_NAME in wait_for:
                wait_until(lambda: run.from_host("ZVPing"), "the pane asks for the agent")
            return daemon

        def toggle():
            before = bool(session.stored("LaunchAtLogin"))
            for _ in range(20):
                desktop.Pane.strike("alt+l")
                if wait_for_change(lambda: bool(session.stored("LaunchAtLogin")) != before):
                    return
            raise AssertionError("no click reaches the agent")

        def wait_for_change(condition):
            end = time.monotonic() + 2
            while time.monotonic() < end and not condition():
                turn(0.02)
            return condition()

        wait_for = []
        daemon = start_bus()
        agent = session.start_agent()
        host = session.start(BUILD / "bin/zarvil-preferences", "--root", session.root, "--tab", "general",
                             desktop.BUNDLE)
        wait_for = [AGENT_NAME, HOST_NAME]
        wait_until(lambda: session.owner(HOST_NAME) == host.pid, "the host is up")
        active = ("xdotool", "getactivewindow", "getwindowpid")
        wait_until(lambda: subprocess.run(active, capture_output=True, text=True).stdout.strip() == str(host.pid),
                   "its window has the keyboard")
        longest = 0
        for _ in range(count):
            toggle()
            daemon.kill()
            daemon.wait()
            desktop.Pane.strike("alt+l")
            turn(chance.uniform(0, 0.3))
            begin = time.monotonic()
            run.posted.clear()
            daemon = start_bus()
            longest = max(longest, time.monotonic() - begin)
            assert host.poll() is None and agent.poll() is None
        toggle()
        session.bus = outer
        return f"{count} times, both names owned and a click stored each time, back after at most {longest:.1f} s"


def everything():
    """A payload that has something for every handler."""
    variant = GLib.Variant
    record = {"DeviceName": variant("s", "Forged"), "DeviceVendor": variant("s", "N"),
              "DeviceSerial": variant("s", "1")}
    return {**record, **{key: variant("b", True) for key in BOXES.values()}, "code": variant("x", 2),
            "state": variant("b", True), "ShutdownDelay": variant("x", 7), "device": variant("a{sv}", record),
            "devices": variant("aa{sv}", [record]), "EmailAddress": variant("s", "a@forged.example")}


def picture(run):
    return [(node.get_role_name(), node.get_name(), node.get_state_set().contains(desktop.Atspi.StateType.CHECKED))
            for node in desktop.descendants(run.session.application(run.host.pid))]


def forger():
    """To everybody and straight to the host, in turns."""
    count = times(10_000)
    with Run() as run:
        run.session.start_agent()
        run.start_host()
        run.wait_for_agent()
        before, memory = picture(run), kilobytes(run.host.pid)
        bus = connection()
        host = run.session.bus.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner",
            GLib.Variant("(s)", (HOST_NAME,)), None, 0, 2000, None).unpack()[0]
        names = messages("agent-to-pane")
        payload = GLib.Variant("(a{sv})", (everything(),))
        for name in names:
            for number in range(count):
                bus.emit_signal(host if number % 2 else None, PATH, AGENT_NAME, name, payload)
            bus.flush_sync()
        pings = len(run.from_host("ZVPing"))
        wait_until(lambda: len(run.from_host("ZVPing")) >= pings + 2, "the pane has worked them off")
        run.alive()
        run.wait_for_agent()
        after = picture(run)
        assert after == before, [pair for pair in zip(before, after) if pair[0] != pair[1]][:5]
        sent = collections.Counter(name for name in messages("pane-to-agent")
                                   for _ in run.from_host(name))
        assert set(sent) <= {"ZVPing", "ZVPrefsLoaded"}, sent
        return (f"{count} of each of {len(names)} messages: nothing shown or sent has changed; "
                f"{kilobytes(run.host.pid) - memory:+} KiB")


def flood():
    count = times(100_000)
    with Run() as run:
        agent = PlayedAgent()
        run.start_host()
        run.wait_for_agent()
        run.pane.choose_tab("General")
        variant = GLib.Variant
        memory = kilobytes(run.host.pid)
        begin = time.monotonic()

        def shout(names_and_infos):
            for number, (name, info) in enumerate(names_and_infos):
                agent.say(name, **info)
                if number % 1000 == 0:
                    GLib.MainContext.default().iteration(False)

        def device(number):
            return {"DeviceName": variant("s", f"Device {number:06}"), "DeviceVendor": variant("s", "V"),
                    "DeviceSerial": variant("s", str(number))}

        shout(("ZVSavedPrefs", {"ShutdownDelay": variant("x", number), "LaunchAtLogin": variant("b", number % 2)})
              for number in range(1, count + 1))
        wait_until(lambda: run.pane.text("Shutdown delay") == str(count), "the last delay is shown", 300)
        settings = time.monotonic() - begin
        begin, kept = time.monotonic(), 5
        half = count // 2
        shout(step for number in range(half) for step in
              [("ZVDeviceConnected", device(number))] +
              ([("ZVDeviceDisconnected", device(number))] if number < half - kept else []))
        run.pane.choose_tab("Devices")
        wanted = [f"Device {number:06}, V, {number}" for number in range(half - kept, half)]
        wait_until(lambda: [name for name, _ in run.pane.rows("Connected")] == wanted, "the last are listed", 300)
        devices = time.monotonic() - begin
        run.alive()
        return (f"{count} settings in {settings:.1f} s, {2 * half - kept} arrivals and departures in "
                f"{devices:.1f} s: none lost, last shown; {kilobytes(run.host.pid) - memory:+} KiB")


def end(process):
    """Ends it as a session's end does; how long that took."""
    begin = time.monotonic()
    process.send_signal(signal.SIGTERM)
    process.wait(10)
    return time.monotonic() - begin


def terminated():
    """While it starts, in every tab, with an alert, a panel, a test and a script, without a bus."""
    starts, longest = times(100), 0.0
    with Run() as run:
        run.session.start_agent()
        stages = collections.Counter()
        for number in range(starts):
            host = run.session.start(BUILD / "bin/zarvil-preferences", "--root", run.session.root,
                                     desktop.BUNDLE)
            turn(number * 0.6 / starts)
            longest = max(longest, end(host))
            assert host.returncode in (0, -signal.SIGTERM), host.returncode
            stages["before it listens" if host.returncode else "orderly"] += 1
            wait_until(lambda: not run.session.owner(HOST_NAME), "its name is free")
        (run.session.home / "Library/Zarvil Scripts").mkdir(parents=True)
        (run.session.home / "Library/Zarvil Scripts/hang.zvscript").write_text("sleep 1000")
        (run.session.home / "Library/Zarvil Scripts/bad.zvscript").write_text("exit 3")

        def script(name, sign):
            run.pane.choose_tab("Scripts")
            if not run.session.stored("UseScripts"):
                run.pane.press("Run these scripts when the power fails", "check box")
            run.pane.press(f"Run “{name}”")
            wait_until(lambda: run.pane.alert() or run.pane.showing(sign), sign)

        def panel():
            run.pane.choose_tab("About")
            run.pane.press("Uninstall…")
            wait_until(lambda: run.pane.showing("Uninstall Zarvil?"), "the panel shows")

        def test():
            run.pane.choose_tab("General")
            if not run.pane.checked("Power protection"):
                run.pane.press("Power protection")
            run.pane.press("Test Shutdown")

        def freeze():
            os.kill(run.session.owner(AGENT_NAME), signal.SIGSTOP)

        states = {tab: lambda tab=tab: run.pane.choose_tab(tab)
                  for tab in ("Devices", "General", "Alerts", "Scripts", "About")}
        states.update({"alert": lambda: script("bad", "an alert"), "panel": panel, "test": test,
                       "script": lambda: script("hang", "The script “hang” is running."),
                       "hung agent": freeze})
        for name, reach in states.items():
            run.start_host()
            run.wait_for_agent()
            reach()
            longest = max(longest, end(run.host))
            assert run.host.returncode == 0, f"{name}: {run.host.returncode}"
        return (f"{starts} starts ({dict(stages)}) and {len(states)} states ({', '.join(states)}): "
                f"longest end {1000 * longest:.0f} ms")


if __name__ == "__main__":
    main({"agent-killed": agent_killed, "agent-frozen": agent_frozen, "bus-restarted": bus_restarted,
          "forger": forger, "flood": flood, "terminated": terminated})
