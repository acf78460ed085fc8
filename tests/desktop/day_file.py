"""The day file as lists of short texts, to prepare it before the program starts and to look at it afterwards.

A task is its text, its marks and its notes: "milk!+ / oat / not soy". Marks: * repeats, % on weekdays, + done, ! pinned,
^ highlighted, # cleared today. Scheduled tasks and archived entries follow their day: "2026-09-22 call mum!".
"""
import json
import re
import uuid
from dataclasses import dataclass, field
from itertools import groupby

MARKS = {"*": "repeats", "+": "done", "!": "pinnedTop", "^": "highlighted", "#": "clearedToday"}


@dataclass
class Day:
    today: list = field(default_factory=list)
    tomorrow: list = field(default_factory=list)
    scheduled: list = field(default_factory=list)
    archive: list = field(default_factory=list)


def _record(notation):
    text, marks, notes = re.fullmatch(r"(.*?)([*%+!^#]*)((?: / .*)?)", notation).groups()
    record = {"id": str(uuid.uuid4()).upper(), "text": text, "notes": notes.split(" / ")[1:], "completed": "+" in marks}
    record.update({key: mark in marks for mark, key in MARKS.items()})
    return record | {"schedule": "weekdays" if "%" in marks else "everyDay"}


def _notation(record):
    record = {"done": record.get("completed")} | record
    marks = "".join(mark for mark, key in MARKS.items() if record.get(key))
    marks += "%" if record.get("schedule") == "weekdays" else ""
    return " / ".join([record["text"] + marks, *record["notes"]])


def encoded(day, date):
    """The day file of `day` whose today is the day key `date`."""
    scheduled, archive = ([entry.split(" ", 1) for entry in dated] for dated in (day.scheduled, day.archive))
    return json.dumps({
        "version": 1,
        "date": date,
        "items": [_record(task) for task in day.today],
        "tomorrow": [_record(task) for task in day.tomorrow],
        "scheduled": [{"id": str(uuid.uuid4()).upper(), "date": due, "item": _record(task)} for due, task in scheduled],
        "archive": [{"date": past, "items": [_record(task) for _, task in entries]}
                    for past, entries in groupby(archive, lambda entry: entry[0])],
    })


def decoded(document):
    file = json.loads(document)
    return Day(
        [_notation(task) for task in file["items"]],
        [_notation(task) for task in file["tomorrow"]],
        [f"{entry['date']} {_notation(entry['item'])}" for entry in file["scheduled"]],
        [f"{day['date']} {_notation(entry)}" for day in file["archive"] for entry in day["items"]],
    )
