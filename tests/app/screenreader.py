#!/usr/bin/python3
"""screenreader.py PROGRAM: what a screen reader finds in the real program and hears of it, over AT-SPI.

Needs a session bus, a display and the test devices of tests/support/on-own-display."""

import os
import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

LIMIT = 20  # seconds, for anything that is waited for


CAMERA = "[camera cam]\nname=Board Cam\nformats=YUY2 640x480 30\ncontent=page\n"
MICROPHONE = "[microphone mic]\nsound=silence\n"


def write_devices(text):
    path = os.path.join(os.environ["XDG_RUNTIME_DIR"], "orvane-test-devices.ini")
    with open(path + ".new", "w", encoding="utf-8") as file:
        file.write(text)
    os.replace(path + ".new", path)


def switch_on():
    """As a screen reader does when it starts."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    for switch in ("IsEnabled", "ScreenReaderEnabled"):
        value = GLib.Variant("(ssv)", ("org.a11y.Status", switch, GLib.Variant("b", True)))
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", value, None,
                      Gio.DBusCallFlags.NONE, -1)


def until(what, condition):
    """The condition's first answer that counts. Events are heard meanwhile."""
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            answer = condition()
        except GLib.Error:  # a widget that has gone in the middle of it
            answer = None
        if answer:
            return answer
        time.sleep(0.02)
    raise AssertionError(f"waited in vain for {what}")


class Reader:
    def __init__(self):
        self.said = []  # what a notification says as it comes up
        self.focused = []
        self.keep = [Atspi.EventListener.new(self.hear_notification), Atspi.EventListener.new(self.hear_focus)]
        self.keep[0].register("object:state-changed:showing")
        self.keep[1].register("object:state-changed:focused")

    def hear_notification(self, event):
        try:
            if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
                self.said.append(event.source.get_name())
        except GLib.Error:
            pass  # it has gone already

    def hear_focus(self, event):
        if event.detail1:
            self.focused.append(event.source.get_name())

    @staticmethod
    def program():
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child and child.get_name() == "orvane":
                return child
        return None

    def showing(self, node=None):
        """All that is on the screen."""
        node = node or self.program()
        for index in range(node.get_child_count() if node else 0):
            child = node.get_child_at_index(index)
            if child and child.get_state_set().contains(Atspi.StateType.SHOWING):
                yield child
                yield from self.showing(child)

    def find(self, name, role):
        pattern = re.compile(name)

        def look():
            for node in self.showing():
                if node.get_role() == role and pattern.fullmatch(node.get_name()):
                    return node
            return None

        return until(f"{role.value_nick} {name}", look)

    def press(self, name):
        button = self.find(name, Atspi.Role.PUSH_BUTTON)
        until(f"{name} to be enabled", lambda: button.get_state_set().contains(Atspi.StateType.ENABLED))
        Atspi.Action.do_action(button, 0)

    def expect_said(self, *texts):
        for text in texts:
            until(f"'{text}' to be said, after {self.said}", lambda: text in self.said)
        self.said.clear()


def lesson(reader):
    reader.find("Live picture", Atspi.Role.IMAGE)

    reader.press("Continuous Capture")
    reader.expect_said("2 second to capture", "1 second to capture")
    for number in ("1", "2"):
        reader.find(f"Photo {number}", Atspi.Role.IMAGE)
        reader.find(f"Zoom {number}", Atspi.Role.PUSH_BUTTON)
    reader.press("Zoom 2")
    reader.press("Back")

    reader.press("List")
    reader.find("List", Atspi.Role.LIST)
    reader.find(r"Photo 1, \d\d:\d\d:\d\d", Atspi.Role.LIST_ITEM)
    until("the strip to have the focus", lambda: reader.focused[-1] == "List")
    subprocess.run(["xdotool", "key", "Right", "space"], check=True)
    until("the second item to be reached", lambda: reader.focused[-1].startswith("Photo 2, "))
    second = reader.find("Photo 2, .*", Atspi.Role.LIST_ITEM)
    until("it to be chosen", lambda: second.get_state_set().contains(Atspi.StateType.SELECTED))

    reader.press("Live")
    reader.press("Movie")
    reader.expect_said("Recording")
    reader.press("Stop")
    reader.find("Play", Atspi.Role.PUSH_BUTTON)
    reader.press("Live")
    reader.find("Live picture", Atspi.Role.IMAGE)

    subprocess.run(["xdotool", "key", "F1"], check=True)
    until("the keys to be said", lambda: "Ctrl+C: Copies what is shown" in " ".join(reader.said))
    subprocess.run(["xdotool", "key", "F1"], check=True)

    load(reader)

    write_devices(MICROPHONE)
    reader.find("The video device is invalid.*", Atspi.Role.LABEL)
    until("the message's button to have the focus", lambda: reader.focused[-1] == "OK")
    subprocess.run(["xdotool", "key", "Return"], check=True)

    reader.press("Exit")
    reader.find(r"Do you want to save the Photo / Movie data\?", Atspi.Role.LABEL)
    until("the question's first answer to have the focus", lambda: reader.focused[-1] == "Yes")
    reader.press("Cancel")


def load(reader):
    folder = os.path.expanduser("~/earlier")
    os.mkdir(folder)
    reader.press("List")
    reader.press("Load")
    until("the folder chooser", lambda: "Directory:" in reader.focused[-1])
    subprocess.run(["xdotool", "type", folder], check=True)
    subprocess.run(["xdotool", "key", "Return"], check=True)
    reader.expect_said("File is loading. Please wait...", "File loaded successfully.")
    until("the dialog's button to have the focus", lambda: reader.focused[-1] == "OK")
    subprocess.run(["xdotool", "key", "Return"], check=True)
    reader.press("Live")
    reader.find("Live picture", Atspi.Role.IMAGE)


def main():
    with open(os.path.expanduser("~/.hollin_orvane.ini"), "w", encoding="utf-8") as file:
        file.write("[General]\nAutoShoot=1\nAutoShootTime=2\nContinuShootCount=2\n")
    write_devices(CAMERA + MICROPHONE)
    switch_on()
    reader = Reader()
    program = subprocess.Popen([sys.argv[1]])
    try:
        lesson(reader)
    finally:
        program.kill()
        program.wait()


main()
