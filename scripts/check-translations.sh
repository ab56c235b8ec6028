#!/usr/bin/env bash
# Checks that the translations keep up with the sources: every text of src/ is in each .ts file,
# no .ts holds an unfinished or obsolete message, and every translation keeps the %1, %2 ... and
# %n of its source. --allow-unfinished lets untranslated messages pass (while translators work).
# Prints each fault; exits 1 if any.
set -euo pipefail
cd "$(dirname "$0")/.."

allow_unfinished=0
[ "${1:-}" = "--allow-unfinished" ] && allow_unfinished=1

lupdate=/usr/lib/qt6/bin/lupdate
[ -x "$lupdate" ] || lupdate=$(command -v lupdate)

# lupdate works on a copy: the files in the repository stay as they are.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp translations/*.ts "$work/"
"$lupdate" -silent -locations none src -ts "$work"/*.ts

python3 - "$allow_unfinished" translations "$work" <<'PY'
import os, re, sys, xml.etree.ElementTree as ET

allow_unfinished = sys.argv[1] == "1"
committed, updated = sys.argv[2], sys.argv[3]
markers = re.compile(r"%(?:n|L?\d)")

def messages(path):
    for context in ET.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message

faults = []
for name in sorted(f for f in os.listdir(committed) if f.endswith(".ts")):
    known = {(c, m.findtext("source")) for c, m in messages(os.path.join(committed, name))}
    for context, message in messages(os.path.join(updated, name)):
        source = message.findtext("source")
        where = f"{name}: {context}: {source!r}"
        translation = message.find("translation")
        kind = translation.get("type") if translation is not None else None
        if (context, source) not in known:
            faults.append(f"{where} is not in the file (run the update_translations target)")
        elif kind in ("vanished", "obsolete"):
            faults.append(f"{where} is obsolete: no source has it any more")
        elif kind == "unfinished":
            if not allow_unfinished:
                faults.append(f"{where} is unfinished")
        else:
            forms = [f.text or "" for f in translation.iter("numerusform")] or [translation.text or ""]
            wanted = set(markers.findall(source))
            for form in forms:
                lacking = wanted - set(markers.findall(form))
                if lacking:
                    faults.append(f"{where}: the translation {form!r} lacks {', '.join(sorted(lacking))}")

for fault in faults:
    print(fault)
sys.exit(1 if faults else 0)
PY
