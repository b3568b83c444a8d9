# What all parts of the test share: the collection, the tables of the source, the ear, and the program that runs.
# Arguments: the program, the source folder, the folder of the collection.
import sys

import bus_kit
from bus_kit import *
from bus_source import Source

LABELLED_BY = Atspi.RelationType.LABELLED_BY
RECORD_SCREEN = "Reelora Prima Record"
FILM = 649  # bytes

source = Source(sys.argv[2])
collection = sys.argv[3]


def films():
    held = open(f"{collection}/Recpra.Dat", "rb").read().decode("cp1252")
    return [held[at : at + FILM] for at in range(0, len(held), FILM)]


record = films()
title = [one[:40].strip() for one in record]
ear = Ear()
start(sys.argv[1], collection)
