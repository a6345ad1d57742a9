# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The ways through the application on which the pictures are taken: by keyboard, so that they are the same in all
languages and sizes."""

import time

from gallery import Unseen
from stage import DEVICE_TOOLS, Machine

# In the order of the cards of the dashboard.
MODULES = ("systemJunk", "largeFiles", "uninstaller", "maintenance", "duplicates", "iosDevice")
# Before the first card: the menu, seven rows of the sidebar, and the scan.
STOPS_BEFORE_CARDS = 9
# How many folders are read before the scan is held, so that it has found something.
FOLDERS_READ = {"systemJunk": 80, "largeFiles": 24, "duplicates": 24}
# What is gone from the disk between the question and the cleaning.
VANISHING = {
    "systemJunk": ("Library/Caches/Quillmark", "Library/Logs/backup-agent.log", ".cache/pipewright"),
    "largeFiles": ("Movies/Harbour at dawn — final cut.mov",),
    "duplicates": ("Desktop/IMG_0412 copy.mov", "Pictures/Sorted/IMG_0412.mov", "Pictures/2024 Brest/IMG_0412.mov"),
}


def open_module(machine, module: str):
    machine.settle()
    machine.press("Tab", times=STOPS_BEFORE_CARDS + 1 + MODULES.index(module))
    machine.press("Return")


def dashboard(settings, scheme, gallery):
    with Machine(settings, scheme, gallery) as machine:
        machine.shoot("dashboard")
        machine.press("Tab", times=STOPS_BEFORE_CARDS + 1)
        machine.shoot("dashboard-keyboard")
        machine.press("Tab", times=len(MODULES))
        machine.press("Return")
        machine.shoot("application-menu")
    with Machine(settings, scheme, gallery, full=True) as machine:
        machine.shoot("dashboard-full")


def withhold_access(machine):
    """What only a program with the permission can list is there, and cannot be listed."""
    (machine.home / "Library").mkdir(exist_ok=True)
    (machine.home / "Library/Safari").touch()


def permission(settings, scheme, gallery):
    with Machine(settings, scheme, gallery, home=(), prepare=withhold_access) as machine:
        machine.shoot("permission-dashboard")
        machine.shoot("permission-settings", machine.open_settings())


def settings_window(settings, scheme, gallery):
    with Machine(settings, scheme, gallery, home=()) as machine:
        machine.settle()
        window = machine.open_settings()
        machine.shoot("settings-general", window)
        # In a language from right to left the other of the two keys moves on, and this one does nothing.
        machine.press("Tab", "Right", "Left" if settings.mirrored else "Right")
        machine.shoot("settings-about", window)


def to_results(machine, module: str):
    open_module(machine, module)
    machine.shoot(f"{module}-start")
    machine.hold("reading", FOLDERS_READ[module])
    machine.press("Return")
    machine.shoot_unfocused(f"{module}-scanning", moving=True)
    machine.let_go("reading")
    machine.shoot_unfocused(f"{module}-results")


def scan_module(module: str):
    def tour(settings, scheme, gallery):
        chosen = module == "largeFiles"
        with Machine(settings, scheme, gallery) as machine:
            to_results(machine, module)
            if chosen:
                machine.press("space", "Down", "space")
                machine.shoot_unfocused(f"{module}-chosen")
            machine.press("Menu")
            machine.shoot(f"{module}-row-menu")
            machine.press("Escape")
            machine.settle()
            machine.press("Tab", "Return")
            machine.shoot(f"{module}-confirmation")
            machine.hold("moving")
            machine.press("Return")
            machine.shoot(f"{module}-cleaning", moving=True)
            machine.let_go("moving")
            machine.shoot(f"{module}-cleaned")
        with Machine(settings, scheme, Unseen()) as machine:
            to_results(machine, module)
            if chosen:
                machine.press("space", "Down", "space")
            machine.press("Tab", "Return")
            machine.shoot(f"{module}-confirmation")
            machine.vanish(VANISHING[module])
            machine.press("Return")
            machine.gallery = gallery
            machine.shoot(f"{module}-failures")
            machine.press("shift+Tab", "Return")
            machine.shoot_unfocused(f"{module}-failures-shown")
        with Machine(settings, scheme, gallery, home=()) as machine:
            open_module(machine, module)
            machine.settle()
            machine.press("Return")
            machine.shoot_unfocused(f"{module}-all-clean")
    return tour


def uninstaller(settings, scheme, gallery):
    with Machine(settings, scheme, gallery) as machine:
        open_module(machine, "uninstaller")
        machine.shoot("uninstaller-start")
        machine.hold("reading", 6)
        machine.press("Return")
        machine.shoot("uninstaller-scanning", moving=True)
        machine.let_go("reading")
        machine.shoot_unfocused("uninstaller-none-selected")
        machine.write("zzz")
        machine.shoot("uninstaller-no-match")
        machine.press("Escape")
        machine.write("e")
        machine.press("Down")
        machine.shoot_unfocused("uninstaller-selected")
        machine.press("Return", "Return")
        machine.shoot("uninstaller-confirmation")
        machine.hold("moving")
        machine.press("Tab", "Return")
        machine.shoot("uninstaller-removing", moving=True)
        machine.let_go("moving")
        machine.shoot_unfocused("uninstaller-removed")
    program = "Applications/Inkwhistle Studio.app/Contents/MacOS/Inkwhistle Studio"
    with Machine(settings, scheme, gallery, running=program) as machine:
        open_module(machine, "uninstaller")
        machine.settle()
        machine.press("Return")
        machine.settle()
        machine.press("Down")
        machine.shoot("uninstaller-running")
    with Machine(settings, scheme, gallery, home=()) as machine:
        open_module(machine, "uninstaller")
        machine.settle()
        machine.press("Return")
        machine.shoot("uninstaller-empty")


def maintenance(settings, scheme, gallery):
    with Machine(settings, scheme, gallery) as machine:
        open_module(machine, "maintenance")
        machine.shoot("maintenance")
        machine.hold("pkexec")
        machine.press("Return")
        machine.shoot("maintenance-running", moving=True)
        machine.let_go("pkexec")
        machine.shoot_unfocused("maintenance-done")
        machine.press("Tab", "Return")
        machine.shoot_unfocused("maintenance-failed")
        machine.press("Tab", "Tab", "End")
        machine.shoot("maintenance-background-items")
        machine.press("Home", "Return")
        machine.shoot("maintenance-removal")
        machine.press("Tab", "Return")
        machine.shoot("maintenance-removed")
    with Machine(settings, scheme, gallery, home=(), bare=True) as machine:
        open_module(machine, "maintenance")
        machine.shoot("maintenance-nothing")


def connect_device(machine):
    roll = machine.stand_ins / "device/DCIM"
    for folder, count in (("100APPLE", 64), ("101APPLE", 38)):
        (roll / folder).mkdir(parents=True)
        for number in range(1, count + 1):
            ending = "MOV" if number % 9 == 4 else "JPG" if number % 7 == 5 else "HEIC"
            (roll / folder / f"IMG_{folder[2]}{number:03}.{ending}").write_text("a picture of nothing\n")


def devices(settings, scheme, gallery):
    with Machine(settings, scheme, gallery) as machine:
        open_module(machine, "iosDevice")
        machine.shoot("device-no-tools")
    with Machine(settings, scheme, gallery, tools=DEVICE_TOOLS) as machine:
        machine.hold("idevice_id")
        machine.hold("reading")
        open_module(machine, "iosDevice")
        machine.shoot("device-looking", moving=True)
        machine.let_go("idevice_id")
        machine.let_go("reading")
        machine.shoot("device-none")
    with Machine(settings, scheme, gallery, tools=DEVICE_TOOLS, prepare=connect_device) as machine:
        machine.hold("ls")
        open_module(machine, "iosDevice")
        machine.shoot("device-reading", moving=True)
        machine.let_go("ls")
        machine.shoot("device")
        machine.press("Tab", "Tab", "Return", "Down", "space", "Down", "space", "Down", "space")
        machine.shoot_unfocused("device-ticked")
        machine.hold("get")
        machine.press("Tab", "Return")
        machine.shoot("device-exporting", moving=True)
        machine.let_go("get")
        machine.shoot_unfocused("device-exported")
        machine.press("Tab", "Return")
        machine.shoot("device-deletion")
        machine.hold("rm")
        machine.press("Tab", "Return")
        machine.shoot("device-deleting", moving=True)
        machine.let_go("rm")
        machine.shoot("device-deleted")


def device_failures(settings, scheme, gallery):
    with Machine(settings, scheme, gallery, tools=DEVICE_TOOLS - {"afcclient"}, prepare=connect_device) as machine:
        open_module(machine, "iosDevice")
        machine.shoot("device-failed")
        machine.press("Tab", "Tab", "End")
        machine.shoot("device-backups")
        machine.press("Home", "Return")
        machine.shoot("device-backup-deletion")
        machine.press("Tab", "Return")
        machine.shoot("device-backup-deleted")
    with Machine(settings, scheme, gallery, home=(), tools=DEVICE_TOOLS,
                 prepare=lambda machine: (machine.stand_ins / "device/DCIM").mkdir(parents=True)) as machine:
        open_module(machine, "iosDevice")
        machine.shoot("device-empty")


def remember_cleanup(machine):
    folder = machine.home / ".config/korvane"
    folder.mkdir(parents=True)
    (folder / "korvane.conf").write_text(
        f"[General]\nlastCleanedBytes=2417983488\nlastCleanedDate={time.time() - 7300}\n")


def panel(settings, scheme, gallery):
    for name, prepare in (("panel", None), ("panel-cleaned", remember_cleanup)):
        with Machine(settings, scheme, gallery, home=(), trayed=True, prepare=prepare) as machine:
            machine.settle()
            machine.click_icon()
            window = machine.new_window()
            machine.park()
            machine.shoot(name, window)
            machine.press("Tab")
            machine.shoot(f"{name}-keyboard", window)


TOURS = {
    "dashboard": dashboard,
    "systemJunk": scan_module("systemJunk"),
    "largeFiles": scan_module("largeFiles"),
    "duplicates": scan_module("duplicates"),
    "uninstaller": uninstaller,
    "maintenance": maintenance,
    "devices": devices,
    "deviceFailures": device_failures,
    "panel": panel,
    "settings": settings_window,
    "permission": permission,
}
