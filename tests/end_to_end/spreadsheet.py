#!/usr/bin/python3
"""Opens a saved schedule as a spreadsheet program does, and finds the numbers in their cells:
spreadsheet.py SCHEDULE. Where LibreOffice Calc is not installed, the library's own reader of
tab-delimited files takes its place."""

import csv
import pathlib
import shutil
import subprocess
import sys
import tempfile

HEADINGS = ["Year", "Age on 1 Jan", "Begining Balance", "Draw", "Ending Balance", "Age on 31 Dec"]
ROWS = [[2010, 70, 500000, 131468, 411522, 71], [2011, 71, 411522, 134755, 315666, 72],
        [2012, 72, 315666, 138123, 211984, 73], [2013, 73, 211984, 141577, 100000, 74]]
TABS_IN = "Text - txt - csv (StarCalc):9,34,76,1"
NUMBERS_OUT = "csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,false"


def opened_in_calc(schedule):
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["soffice", f"-env:UserInstallation=file://{folder}/profile", "--headless",
                        f"--infilter={TABS_IN}", "--convert-to", NUMBERS_OUT, "--outdir", folder,
                        schedule], check=True, stdout=subprocess.DEVNULL, timeout=120)
        with open(pathlib.Path(folder, pathlib.Path(schedule).stem + ".csv"), newline="") as file:
            return list(csv.reader(file))


def read_by_tabs(schedule):
    print("LibreOffice Calc is not installed; the schedule is read by Python's csv module.")
    with open(schedule, newline="") as file:
        return [[cell.replace(",", "") for cell in row]
                for row in csv.reader(file, delimiter="\t")]


read = opened_in_calc if shutil.which("soffice") else read_by_tabs
cells = read(sys.argv[1])
if any(len(row) != 6 for row in cells) or len(cells) != 14:
    sys.exit(f"not fourteen lines of six cells: {cells}")
if cells[0][0] != "Start with 1 Jan 2010" or cells[9] != HEADINGS:
    sys.exit(f"not the parameters and the headings: {cells[:10]}")
if [[float(cell) for cell in row] for row in cells[10:]] != ROWS:
    sys.exit(f"not the numbers: {cells[10:]}")
