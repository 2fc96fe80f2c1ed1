#!/usr/bin/env python3
"""A host in Python: creates a job and then changes it, both without a window.

    host.py FOLDER NAME LANGUAGE-FILE
    host.py --window FOLDER LANGUAGE-FILE     opens the window on a new job
"""

import sys

import kestedit


def create(editor, name):
    def fill(form):
        form.event("type", "dxName", name)
        form.event("button", "dxSource", "0")  # browses
        form.event("type", "dxDest", "/var/backups")
        form.event("choose", "optIntervall(1)")
        form.event("set-time", "dxDateTime", "18:30:00")
        print(form.get("dxSource.EditValue"), "every day at", form.get("dxDateTime.EditValue"))
        form.event("click", "cmdSave")

    editor.set("Mode", "New")
    editor.choosers(folder=lambda title, start: "/var/log")
    editor.drive(fill)
    editor.show()


def change(editor, folder, name):
    def fill(form):
        try:
            form.event("click", "chkSubFolder")  # a check box is no button
        except kestedit.EditorError as error:
            print("refused:", error)
        form.event("check", "chkSubFolder", "1")
        form.event("click", "cmdSave")

    editor.set("Mode", "Edit")
    editor.set("JobFile", f"{folder}/{name}.job")
    editor.drive(fill)
    editor.show()


def main(folder, name, language):
    editor = kestedit.Editor(AppTitle="Python host", JobDir=folder, JobExtension=".job", Language=language, View=4)
    editor.on_search_jobs(lambda: print("event: a new job"))
    editor.on_set_new_values(lambda text: print(f"event: the job has changed, \"{text}\""))
    create(editor, name)
    change(editor, folder, name)
    editor.release()


def window(folder, language):
    kestedit.use_desktop()
    editor = kestedit.Editor(Mode="New", AppTitle="Python host", JobDir=folder, JobExtension=".job", Language=language)
    editor.on_search_jobs(lambda: print("event: a new job"))
    editor.show()
    editor.release()


if __name__ == "__main__":
    try:
        if sys.argv[1:2] == ["--window"]:
            window(*sys.argv[2:])
        else:
            main(*sys.argv[1:])
    except kestedit.EditorError as error:
        sys.exit(f"host.py: {error}")
