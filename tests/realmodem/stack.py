"""Runs within the namespaces that ./stack made: bus, polkit stand-in, ModemManager, NetworkManager, scripted modems, and
beside them the test program, whose status it ends with. The program controls it through the socket $ORBISDIAL_STACK/control:
a JSON array with a command and its arguments a line, answered by a line, {"answer": …} or {"error": …}. Commands:

    plug ID [TABLE, …]    a new modem, ModemManager's device /virtual/ID, that answers by these tables (answers.py)
    unplug ID, replug ID  it goes, it comes again, as long as ModemManager lives
    reply ID COMMAND TEXT its answer from now on
    send ID TEXT          a line that nobody asked for
    commands ID           what it was sent so far
    daemon ACTION NAME    kill, stop, cont or start (again, with the modems plugged in) ModemManager or NetworkManager
    permit YES            what polkit says from now on, to others than root
    pppd MODE             what the stand-in does from now on (pppd)
"""

import json
import os
import shutil
import signal
import socket
import subprocess
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

from modem import Modem

HERE = os.path.dirname(os.path.abspath(__file__))
FOLDER = sys.argv[1]
MM, NM, POLKIT = "org.freedesktop.ModemManager1", "org.freedesktop.NetworkManager", "org.freedesktop.PolicyKit1"
STARTING_MS, POLLING_MS = 60000, 20


def place(*names):
    return os.path.join(FOLDER, *names)


def write(name, text):
    with open(place(name), "w") as file:
        file.write(text)


def run(*command):
    subprocess.run(command, check=True)


BUS_CONFIGURATION = """<busconfig>
  <type>system</type>
  <keep_umask/>
  <listen>unix:path=%s</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_type="method_call"/>
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
  </policy>
</busconfig>
"""

NM_CONFIGURATION = """[main]
plugins=keyfile
auth-polkit=true
dns=none
rc-manager=unmanaged
systemd-resolved=false
hostname-mode=none
no-auto-default=*
dhcp=internal
[keyfile]
path=%s
[logging]
level=DEBUG
[connectivity]
enabled=false
"""

DAEMONS = {
    "ModemManager": (MM, "ModemManager", "--no-auto-scan", "--test-enable", "--test-no-udev",
                     "--test-no-suspend-resume", "--test-no-qrtr", "--debug"),
    "NetworkManager": (NM, "NetworkManager", "--debug", "--config=" + place("nm.conf"), "--config-dir=" + place("nm"),
                       "--system-config-dir=" + place("nm"), "--intern-config=" + place("nm", "intern.conf"),
                       "--state-file=" + place("nm", "state"), "--pid-file=" + place("nm", "pid")),
}


def prepare_folders():
    os.chmod(FOLDER, 0o755)
    for name in "ports", "nm", "profiles", "state":
        os.mkdir(place(name))
    write("bus.conf", BUS_CONFIGURATION % place("bus"))
    write("nm.conf", NM_CONFIGURATION % place("profiles"))


# What the daemons would read and write outside the folder is another thing in this mount namespace.
def prepare_namespaces():
    run("mount", "--make-rprivate", "/")
    run("ip", "link", "set", "lo", "up")
    run("mount", "-t", "sysfs", "sysfs", "/sys")
    run("mount", "-t", "tmpfs", "tmpfs", "/run")
    os.mkdir("/run/NetworkManager")
    run("mount", "--bind", place("state"), "/var/lib/NetworkManager")
    run("mount", "--bind", os.path.join(HERE, "pppd"), "/usr/sbin/pppd")
    own_plugins()
    log_everybody_in()


# NetworkManager loads only plug-ins of root's, who is nobody in a namespace of users: a copy is ours.
def own_plugins():
    for folder in os.popen("echo /usr/lib/*/NetworkManager/[0-9]*").read().split():
        if os.path.isdir(folder) and os.stat(folder).st_uid != 0:
            shutil.copytree(folder, place("plugins"))
            run("mount", "--bind", place("plugins"), folder)


# Profiles that belong to a user work only while systemd's logind says in these files that he is there.
def log_everybody_in():
    for name in "users", "sessions", "seats", "machines":
        os.makedirs("/run/systemd/" + name)
    for user in 0, 1000, 65534:
        with open("/run/systemd/users/%d" % user, "w") as file:
            file.write("STATE=active\nSESSIONS=1\nACTIVE_SESSIONS=1\nONLINE_SESSIONS=1\n")


class Polkit(dbus.service.Object):
    permits = True

    @dbus.service.method(POLKIT + ".Authority", in_signature="(sa{sv})sa{ss}us", out_signature="(bba{ss})",
                         sender_keyword="sender")
    def CheckAuthorization(self, subject, action, details, flags, cancellation, sender=None):
        kind, about = subject
        name = about.get("name")
        user = bus.get_unix_user(name) if name else int(about.get("uid", 0))
        return (self.permits or user == 0, False, {})

    @dbus.service.method(POLKIT + ".Authority", in_signature="s")
    def CancelCheckAuthorization(self, cancellation):
        pass

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return {"BackendName": "stand-in", "BackendVersion": "1", "BackendFeatures": dbus.UInt32(1)}

    @dbus.service.signal(POLKIT + ".Authority")
    def Changed(self):
        pass


processes, modems, unplugged = {}, {}, set()


# Calls done() once the condition holds, or failed() when that takes too long.
def when(condition, done, failed):
    left = [STARTING_MS // POLLING_MS]

    def look():
        left[0] -= 1
        if condition():
            done()
        elif left[0] <= 0:
            failed("it took too long")
        else:
            return True
        return False

    if look():
        GLib.timeout_add(POLLING_MS, look)


def manager(path=""):
    return bus.get_object(MM, "/org/freedesktop/ModemManager1", introspect=False)


def attach(modem_id, done, failed):
    ports = dbus.Array([modem_id + "-port"], signature="s")
    manager().SetProfile(modem_id, "generic", ports, dbus_interface=MM + ".Test", reply_handler=done,
                         error_handler=failed)


def start(name, done, failed):
    bus_name, *command = DAEMONS[name]
    log = open(place(name + ".log"), "a")
    processes[name] = subprocess.Popen(command, cwd=place("ports"), stdout=log, stderr=log, stdin=subprocess.DEVNULL)

    def attach_all():
        if name == "ModemManager":
            for modem_id in modems.keys() - unplugged:
                attach(modem_id, lambda: None, print)
        done()

    when(lambda: bus.name_has_owner(bus_name), attach_all, failed)


def command_plug(done, failed, modem_id, tables):
    unplugged.discard(modem_id)
    modems[modem_id] = Modem(place("ports", modem_id + "-port"), tables)
    attach(modem_id, done, failed)


def inhibit(done, failed, modem_id, is_inhibited):
    manager().InhibitDevice("/virtual/" + modem_id, is_inhibited, dbus_interface=MM, reply_handler=done,
                            error_handler=failed)


def command_unplug(done, failed, modem_id):
    def gone():
        unplugged.add(modem_id)
        done()

    inhibit(gone, failed, modem_id, True)


def command_replug(done, failed, modem_id):
    unplugged.discard(modem_id)
    inhibit(done, failed, modem_id, False)


def command_reply(done, failed, modem_id, command, text):
    modems[modem_id].table[command] = text
    done()


def command_send(done, failed, modem_id, text):
    modems[modem_id].send(text)
    done()


def command_commands(done, failed, modem_id):
    done(modems[modem_id].commands)


# ModemManager leaves the bus before it ends, so a new one must wait for the end of the old one, and so does its caller.
def command_daemon(done, failed, action, name):
    if action == "start":
        start(name, done, failed)
        return
    signals = {"kill": signal.SIGKILL, "stop": signal.SIGSTOP, "cont": signal.SIGCONT}
    processes[name].send_signal(signals[action])
    if action == "kill":
        processes[name].wait()
    done()


def command_permit(done, failed, permits):
    polkit.permits = permits
    polkit.Changed()
    done()


def command_pppd(done, failed, mode):
    write("pppd.mode", mode)
    done()


def obey(line, connection):
    def answer(**what):
        connection.sendall(json.dumps(what).encode() + b"\n")

    try:
        name, *arguments = json.loads(line)
        command = globals()["command_" + name]
        command(lambda result=None: answer(answer=result), lambda reason: answer(error=str(reason)), *arguments)
    except Exception as error:  # whatever it is, the test must hear of it
        answer(error=repr(error))


def listen():
    control = socket.socket(socket.AF_UNIX)
    control.bind(place("control"))
    control.listen()
    os.chmod(place("control"), 0o666)

    def accept(*_):
        connection, _ = control.accept()
        lines = connection.makefile("r")

        def receive(*_):
            line = lines.readline()
            if line:
                obey(line, connection)
            return bool(line)

        GLib.io_add_watch(connection, GLib.IO_IN | GLib.IO_HUP, receive)
        return True

    GLib.io_add_watch(control, GLib.IO_IN, accept)


def run_program():
    environment = dict(os.environ, ORBISDIAL_DEVICE="modemmanager")
    program = subprocess.Popen(sys.argv[2:], env=environment)
    GLib.child_watch_add(GLib.PRIORITY_DEFAULT, program.pid, lambda pid, status: end(os.waitstatus_to_exitcode(status)))


def end(status):
    end.status = status
    loop.quit()


def fail(reason):
    print("The daemons did not start:", reason, file=sys.stderr)
    end(1)


# GLib would go on after what happens in its callbacks.
def end_at_once(*exception):
    sys.__excepthook__(*exception)
    os._exit(1)


sys.excepthook = end_at_once
prepare_folders()
prepare_namespaces()
os.environ.update(ORBISDIAL_STACK=FOLDER, DBUS_SYSTEM_BUS_ADDRESS="unix:path=" + place("bus"),
                  DBUS_SESSION_BUS_ADDRESS="unix:path=" + place("bus"))
run("dbus-daemon", "--config-file=" + place("bus.conf"), "--fork", "--nosyslog")
bus = dbus.bus.BusConnection(os.environ["DBUS_SYSTEM_BUS_ADDRESS"], mainloop=DBusGMainLoop())
polkit = Polkit(bus, "/org/freedesktop/PolicyKit1/Authority")
bus.request_name(POLKIT)
listen()
loop = GLib.MainLoop()
start("ModemManager", lambda: start("NetworkManager", run_program, fail), fail)
loop.run()
sys.exit(end.status if end.status >= 0 else 128 - end.status)
