"""The lock with the real authorization service, on a system bus of its own and with the pane as an
ordinary user. To be run as root in mounts of its own."""

import contextlib
import os
import pathlib
import pwd
import shutil
import signal
import subprocess
import sys
import tempfile

from common import GLib, Gio, Run, TOP, connection, main, times, wait_until

AUTHORITY, AUTHORITY_PATH = "org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority"
ACTION = "com.Tessrow.Zarvil.system.privilege.admin"
USER = pwd.getpwnam("nobody")
EVERYBODY = """<busconfig><policy context="default"><allow user="*"/><allow own="*"/>
  <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/></policy></busconfig>"""
SYSTEM_BUS = """<busconfig><type>system</type><listen>unix:path=%s</listen><auth>EXTERNAL</auth>
  <policy context="default"><allow user="*"/><allow own="*"/><allow send_destination="*" eavesdrop="true"/>
  <allow eavesdrop="true"/></policy></busconfig>"""
# The rule's verdict stands in a file, so that it can change while the service runs.
RULE = """polkit.addRule(function(action, subject) {
    if (action.id == "%s") return polkit.spawn(["/bin/cat", "%s"]).trim();
});"""
AGENT_XML = """<node><interface name="org.freedesktop.PolicyKit1.AuthenticationAgent">
<method name="BeginAuthentication"><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="a{ss}" direction="in"/><arg type="s" direction="in"/>
<arg type="a(sa{sv})" direction="in"/></method>
<method name="CancelAuthentication"><arg type="s" direction="in"/></method></interface></node>"""


class Services:
    """The system bus, the authority and who asks for passwords."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="zarvil-polkit-"))
        self.folder.chmod(0o755)
        self.verdict = self.folder / "verdict"
        self.address = f"unix:path={self.folder}/bus"
        self.processes, self.asked, self.password = [], 0, "right"
        self.authority = None
        self.lay_out()
        (self.folder / "bus.conf").write_text(SYSTEM_BUS % (self.folder / "bus"))
        bus = self.start("dbus-daemon", "--nofork", "--print-address", f"--config-file={self.folder}/bus.conf",
                         stdout=subprocess.PIPE)
        bus.stdout.readline()
        (self.folder / "bus").chmod(0o777)
        os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = self.address
        self.bus = connection(self.address)

    def lay_out(self):
        """Puts the product's policy and the rule where the authority looks."""
        folders = {"/usr/share/polkit-1/actions": {"zarvil.policy": (TOP / "packaging/com.Tessrow.Zarvil.policy").read_text()},
                   "/usr/share/polkit-1/rules.d": {"10-trial.rules": RULE % (ACTION, self.verdict)},
                   "/etc/polkit-1/rules.d": {}}
        for number, (target, files) in enumerate(folders.items()):
            source = self.folder / str(number)
            source.mkdir()
            for name, text in files.items():
                (source / name).write_text(text)
            subprocess.run(["mount", "--bind", source, target], check=True)

    def start(self, *command, **options):
        process = subprocess.Popen(command, stderr=sys.stderr, text=True, **options)
        self.processes.append(process)
        return process

    def close(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.kill()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def has_authority(self):
        return self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                  "NameHasOwner", GLib.Variant("(s)", (AUTHORITY,)), None, 0, 2000, None).unpack()[0]

    def start_authority(self):
        self.authority = self.start("/usr/lib/polkit-1/polkitd", "--no-debug", stdout=sys.stderr)
        wait_until(self.has_authority, "polkit is up")

    def kill_authority(self):
        self.authority.kill()
        self.authority.wait()
        wait_until(lambda: not self.has_authority(), "polkit is gone")

    def call(self, method, arguments):
        return self.bus.call_sync(AUTHORITY, AUTHORITY_PATH, AUTHORITY + ".Authority", method, arguments, None, 0,
                                  5000, None)

    def serve_passwords(self, pid):
        """Asks for a password, as a desktop does, for one process."""
        start = int(pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[19])
        subject = ("unix-process", {"pid": GLib.Variant("u", pid), "start-time": GLib.Variant("t", start),
                                    "uid": GLib.Variant("i", USER.pw_uid)})
        interface = Gio.DBusNodeInfo.new_for_xml(AGENT_XML).interfaces[0]
        with contextlib.suppress(GLib.Error):
            self.bus.register_object("/agent", interface, self.begin, None, None)
        self.call("RegisterAuthenticationAgent", GLib.Variant("((sa{sv})ss)", (subject, "C", "/agent")))

    def begin(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        if method != "BeginAuthentication":
            invocation.return_value(None)
            return
        self.asked += 1
        *_, cookie, [(kind, details)] = arguments.unpack()
        if self.password == "cancel":
            invocation.return_dbus_error(AUTHORITY + ".Error.Cancelled", "dismissed")
        elif self.password == "none":
            self.kill_authority()
        else:
            if self.password == "right":
                self.bus.call(AUTHORITY, AUTHORITY_PATH, AUTHORITY + ".Authority", "AuthenticationAgentResponse2",
                              GLib.Variant("(us(sa{sv}))", (os.getuid(), cookie, (kind, {
                                  name: GLib.Variant("u", number) for name, number in details.items()}))), None, 0,
                              5000, None, lambda bus, result: finish(bus, result, invocation))
            else:
                invocation.return_value(None)


def finish(bus, result, invocation):
    """Ends the question to the user with what the authority made of the answer."""
    try:
        bus.call_finish(result)
        invocation.return_value(None)
    except GLib.Error as error:
        invocation.return_dbus_error(AUTHORITY + ".Error.Failed", error.message)


def admit_user():
    """Lets the ordinary user's programs onto the buses of the session that is started next."""
    folder = pathlib.Path(tempfile.mkdtemp(prefix="zarvil-polkit-"))
    folder.chmod(0o755)
    session = folder / "session.d"
    session.mkdir()
    (session / "trial.conf").write_text(EVERYBODY)
    subprocess.run(["mount", "--bind", session, "/etc/dbus-1/session.d"], check=True)
    accessibility = pathlib.Path("/usr/share/defaults/at-spi2/accessibility.conf")
    (folder / "accessibility").write_text(accessibility.read_text().replace('user="root"', 'user="*"'))
    subprocess.run(["mount", "--bind", folder / "accessibility", accessibility], check=True)


def open_the_way(bus):
    """Lets the ordinary user's programs reach the socket of accessibility."""
    address = bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, 0, 5000,
                            None).unpack()[0]
    socket = pathlib.Path(address.split("path=")[1].split(",")[0])
    socket.chmod(0o777)
    for folder in list(socket.parents)[:-2]:
        folder.chmod(0o711)


def polkit():
    count = times(20)
    services = Services()
    try:
        with Run() as run:
            return go_through(run, services, count)
    finally:
        services.close()


def go_through(run, services, count):
    run.session.start_agent()
    open_the_way(run.session.bus)
    home = run.session.folder / "user"
    home.mkdir(mode=0o700)
    run.session.folder.chmod(0o755)
    os.chown(home, USER.pw_uid, USER.pw_gid)
    user = ("setpriv", f"--reuid={USER.pw_uid}", f"--regid={USER.pw_gid}", "--clear-groups", "env", f"HOME={home}",
            f"XDG_CONFIG_HOME={home}/.config", f"XDG_CACHE_HOME={home}/.cache", f"XDG_DATA_HOME={home}/.local",
            f"XDG_RUNTIME_DIR={home}")
    run.start_host(wrapper=user)
    run.wait_for_agent()

    named = [node for node in run.pane.shown_things()
             if (node.get_name() or "").startswith("Administrator rights: ")]
    line, lock = named[0], next(node for node in named if node.get_action_iface())

    def lock_line():
        line.clear_cache()
        return line.get_name()

    def click(verdict, password, state, words):
        services.verdict.write_text(verdict)
        services.password = password
        lock.get_action_iface().do_action(0)
        wait_until(lambda: lock_line().startswith(f"Administrator rights: {state}") and words in lock_line(),
                   f"the lock is {state} and says {words!r}; it says {lock_line()!r}", 15)

    not_there = "polkit"  # which is named where it is missing, in place of the state
    made = 0
    click("yes", "right", "", not_there)
    for _ in range(count):
        services.start_authority()
        services.serve_passwords(run.host.pid)
        for case in (("yes", "right", "unlocked", ""), ("no", "right", "locked", "You do not have administrator rights"),
                     ("auth_admin", "right", "unlocked", ""), ("auth_admin", "wrong", "locked", "has failed"),
                     ("auth_admin", "cancel", "locked", "cancelled"), ("auth_admin", "none", "", not_there)):
            click(*case)
            if case[2] == "unlocked":
                lock.get_action_iface().do_action(0)
                wait_until(lambda: lock_line().startswith("Administrator rights: locked"), "it is locked again")
            made += 1
            run.alive()
        click("yes", "right", "", not_there)
    assert run.host.poll() is None
    run.host.send_signal(signal.SIGTERM)
    assert run.host.wait(10) == 0
    return (f"{count} rounds of granting, refusing, a right, a wrong and no password, dying while it asks and being "
            f"absent: {made} verdicts, each shown; {services.asked} questions to the user")


if __name__ == "__main__":
    if os.getuid() != 0:
        raise SystemExit("polkit           FAILED  it needs root")
    if sys.argv[1] == "admit":
        admit_user()
    else:
        main({"polkit": polkit})
