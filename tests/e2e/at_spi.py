#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
"""Finds and uses the controls of a running program as a screen reader does: over the accessibility bus.

    at_spi.py [--deadline SECONDS] PID press NAME                do the first action of the control
    at_spi.py [--deadline SECONDS] PID where NAME                print where it is: x y width height
    at_spi.py [--deadline SECONDS] PID cell TABLE ROW COL NAME   the same for the table's cell of that name
    at_spi.py [--deadline SECONDS] PID list                      print role, tab, name of all but cells
    at_spi.py [--deadline SECONDS] PID focus                     print the name of what has the focus, if anything
    at_spi.py [--deadline SECONDS] PID names TABLE               print the name of each of the table's cells
    at_spi.py [--deadline SECONDS] PID hear                      print "ready", then the name of whatever is said
                                                                 to have got the focus, until the deadline
                                                                 with --names also "name: " and the new name of
                                                                 whatever is said to be called otherwise
    at_spi.py [--deadline SECONDS] PID walk                      read all of every object; print role, tab, name

Only what shows on the screen counts, but for "walk", and a place only once it has settled. What is not there
yet is waited for; at the deadline the exit code is 1. "press" and "where" take --role ROLE, as in "menu item",
for a name that several controls have. A control that opens a dialog is no case for "press", which would wait
until the dialog is closed.
"""

import argparse
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PAUSE = 0.05  # seconds between two looks: what comes late gives no event
TABLES = (Atspi.Role.TABLE, Atspi.Role.LAYERED_PANE, Atspi.Role.LIST)


def application(pid):
    """The program's own node; None while it is not on the bus."""
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        if child is not None and child.get_process_id() == pid:
            child.set_cache_mask(Atspi.Cache.NONE)  # nobody is here to hear of changes
            return child
    return None


def shows(node):
    states = node.get_state_set()
    return states.contains(Atspi.StateType.SHOWING) and states.contains(Atspi.StateType.VISIBLE)


def controls(node):
    """All that shows below the node, tables without their cells."""
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is None or not shows(child):
            continue
        yield child
        if child.get_role() not in TABLES:
            yield from controls(child)


def named(program, name, is_meant=lambda node: True):
    for node in controls(program):
        if node.get_name() == name and is_meant(node):
            return node
    return None


def control(program, wanted):
    return named(program, wanted.name, lambda node: wanted.role in (None, node.get_role_name()))


def table_iface(program, wanted):
    table = named(program, wanted.table, lambda node: node.get_role() in TABLES)
    return None if table is None else table.get_table_iface()


def place(node):
    area = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
    return f"{area.x} {area.y} {area.width} {area.height}"


def press(program, wanted):
    """A control that cannot be used yet is waited for as one that is not there."""
    node = control(program, wanted)
    if node is None or not node.get_state_set().contains(Atspi.StateType.ENABLED):
        return None
    actions = node.get_action_iface()
    return "" if actions is not None and actions.do_action(0) else None


def where(program, wanted):
    node = control(program, wanted)
    return None if node is None else place(node)


def said(node):
    """An item of a grid is called what it holds; whose and of which day it is says its description."""
    return (node.get_description(), node.get_name())


def cell(program, wanted):
    table = table_iface(program, wanted)
    found = None if table is None else table.get_accessible_at(wanted.row, wanted.column)
    return place(found) if found is not None and wanted.name in said(found) else None


def everything(program, _):
    found = [f"{node.get_role_name()}\t{node.get_name()}" for node in controls(program)]
    return "\n".join(found) if found else None


def focus(program, _):
    for node in controls(program):
        if node.get_state_set().contains(Atspi.StateType.FOCUSED):
            return node.get_name()
    return ""


def names(program, wanted):
    table = table_iface(program, wanted)
    if table is None:
        return None
    columns = range(table.get_n_columns())
    cells = ((row, column) for row in range(table.get_n_rows()) for column in columns)
    return "\n".join(table.get_accessible_at(*cell).get_name() for cell in cells)


def read_table(table):
    table.get_caption()
    for row in range(table.get_n_rows()):
        table.get_row_header(row)
        table.get_row_description(row)
    for column in range(table.get_n_columns()):
        table.get_column_header(column)
        table.get_column_description(column)


def read(node):
    """Asks the object for all that a screen reader asks of one."""
    for ask in (node.get_description, node.get_state_set, node.get_attributes, node.get_relation_set,
                node.get_parent, node.get_index_in_parent):
        ask()
    component = node.get_component_iface()
    if component is not None:
        component.get_extents(Atspi.CoordType.SCREEN)
    if node.get_role() in TABLES and node.get_table_iface() is not None:
        read_table(node.get_table_iface())
    return f"{node.get_role_name()}\t{node.get_name()}"


def objects(node):
    """All objects below the node, shown or not."""
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child
            yield from objects(child)


def walk(program, _):
    return "\n".join(read(node) for node in objects(program))


def hear(program, wanted):
    def got_focus(event, *_):
        if event.detail1 and event.source.get_process_id() == wanted.pid:
            print(next(filter(None, said(event.source)), ""), flush=True)

    def renamed(event, *_):
        if event.source.get_process_id() == wanted.pid:
            print(f"name: {event.source.get_name()}", flush=True)

    listeners = [(Atspi.EventListener.new(got_focus), "object:state-changed:focused")]
    if wanted.names:
        listeners.append((Atspi.EventListener.new(renamed), "object:property-change:accessible-name"))
    for listener, event in listeners:
        listener.register(event)
    print("ready", flush=True)
    GLib.timeout_add(int(wanted.deadline * 1000), Atspi.event_quit)
    Atspi.event_main()
    return ""


def command_line():
    parser = argparse.ArgumentParser()
    parser.add_argument("--deadline", type=float, default=20.0)
    parser.add_argument("pid", type=int)
    commands = parser.add_subparsers(required=True)
    for look, name, arguments in (
        (press, "press", ["name"]),
        (where, "where", ["name"]),
        (cell, "cell", ["table", "row", "column", "name"]),
        (everything, "list", []),
        (focus, "focus", []),
        (hear, "hear", []),
        (names, "names", ["table"]),
        (walk, "walk", []),
    ):
        command = commands.add_parser(name)
        command.set_defaults(look=look, settles=look in (where, cell, everything, focus))
        if look in (press, where):
            command.add_argument("--role")
        if look is hear:
            command.add_argument("--names", action="store_true")
        for argument in arguments:
            command.add_argument(argument, type=int if argument in ("row", "column") else str)
    return parser.parse_args()


def look_once(wanted):
    try:
        program = application(wanted.pid)
        return None if program is None else wanted.look(program, wanted)
    except GLib.Error:  # something went while it was looked at
        return None


def main():
    wanted = command_line()
    end = time.monotonic() + wanted.deadline
    before = None
    while time.monotonic() < end:
        answer = look_once(wanted)
        if answer is not None and (not wanted.settles or answer == before):
            print(answer)
            return 0
        before = answer
        time.sleep(PAUSE)
    return 1


if __name__ == "__main__":
    sys.exit(main())
