# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
"""Has the screen reader write on its standard output what it says: one line for each utterance.

Names of pressed keys are no utterances of its own choice, and are left out.
"""

import orca.speech

speak_parts = orca.speech.speak
speak_part = orca.speech._speak
parts = []
depth = 0


def speak(content, *arguments, **options):
    global depth
    depth += 1
    try:
        speak_parts(content, *arguments, **options)
    finally:
        depth -= 1
    if depth == 0 and parts:
        print(" ".join(" ".join(parts).split()), flush=True)
        parts.clear()


def note(text, *arguments, **options):
    parts.append(text)
    speak_part(text, *arguments, **options)


orca.speech.speak = speak
orca.speech._speak = note
