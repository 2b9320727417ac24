"""A modem that answers AT commands from tables, on a socket that ModemManager opens as it would a serial port."""

import os
import re
import socket

from gi.repository import GLib

import answers

FINAL_RESULT = re.compile(r"(OK|ERROR|\+CM[ES] ERROR: .*|NO CARRIER|BUSY|NO DIALTONE|NO ANSWER|CONNECT.*)$")


def as_sent(text):
    lines = text.split("\n") if text else []
    if not any(map(FINAL_RESULT.match, lines)):
        lines.append("OK")
    return "".join("\r\n%s\r\n" % line for line in lines).encode()


class Modem:
    def __init__(self, port, tables):
        self.table = {}
        for name in tables:
            self.table.update(getattr(answers, name))
        self.commands = []
        self.format = "0"
        self.connections = {}
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.bind(port)
        self.socket.listen()
        os.chmod(port, 0o666)
        GLib.io_add_watch(self.socket, GLib.IO_IN, self.accept)

    def accept(self, *_):
        connection, _ = self.socket.accept()
        self.connections[connection] = b""
        GLib.io_add_watch(connection, GLib.IO_IN | GLib.IO_HUP, self.receive)
        return True

    def receive(self, connection, _):
        try:
            data = connection.recv(4096)
        except ConnectionResetError:  # it was closed with an answer unread
            data = b""
        if not data:
            del self.connections[connection]
            connection.close()
            return False
        *commands, self.connections[connection] = re.split(rb"[\r\n]+", self.connections[connection] + data)
        for command in filter(None, (c.decode("latin-1").strip() for c in commands)):
            self.commands.append(command)
            answer = self.answer(command)
            if answer != answers.SILENCE:
                self.write(connection, answer)
        return True

    # The daemon may have been killed since it asked; that it has closed is told next.
    @staticmethod
    def write(connection, answer):
        try:
            connection.sendall(as_sent(answer))
        except (BrokenPipeError, ConnectionResetError):
            pass

    def answer(self, command):
        text = self.lookup(command + " " + self.format if command == "AT+COPS?" else command)
        if text is None:
            return "ERROR"
        if not re.search("ERROR", text):
            self.remember(command)
        return text

    def lookup(self, command):
        if command in self.table:
            return self.table[command]
        beginnings = [key for key in self.table if key.endswith("*") and command.startswith(key[:-1])]
        return self.table[max(beginnings, key=len)] if beginnings else None

    # ModemManager reads back what it set.
    def remember(self, command):
        self.table.update(answers.CHANGES.get(command, {}))
        setting = re.match(r"AT\+(\w+)=(\d+)(?:,(.*))?$", command)
        if not setting:
            return
        name, number, rest = setting.groups()
        asked = "AT+%s?" % name
        if name == "COPS" and number == "3":
            self.format = rest
        elif name == "CFUN":
            self.table[asked] = "+CFUN: " + number
        elif name in ("CREG", "CGREG", "CEREG") and asked in self.table:
            self.table[asked] = re.sub(r": \d", ": " + number, self.table[asked], count=1)
        elif name == "CGDCONT":
            kept = [line for line in self.table[asked].split("\n") if line and ": %s," % number not in line]
            kept += ['+CGDCONT: %s,%s,"0.0.0.0",0,0' % (number, rest)] if rest else []
            self.table[asked] = "\n".join(sorted(kept))

    def send(self, text):
        for connection in self.connections:
            connection.sendall(b"\r\n%s\r\n" % text.encode())
