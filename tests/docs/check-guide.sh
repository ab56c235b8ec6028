#!/usr/bin/env bash
# The user's guide PDF exists and holds every heading of its Markdown source, in order.
# Usage: check-guide.sh GUIDE.pdf GUIDE.md
set -euo pipefail
pdf=$1
source=$2
[ -s "$pdf" ] || { echo "missing or empty: $pdf"; exit 1; }
command -v pdftotext >/dev/null || { echo "pdftotext (poppler-utils) is needed"; exit 1; }

# Typeset text may join letters into ligatures; they read as their letters.
text=$(pdftotext -layout "$pdf" - | sed 's/ﬁ/fi/g; s/ﬂ/fl/g; s/ﬀ/ff/g; s/^ *//; s/ *$//')
mapfile -t headings < <(sed -n 's/^#\{1,6\} \+//p' "$source")
[ ${#headings[@]} -ge 5 ] || { echo "the guide has too few headings"; exit 1; }

line=0
for heading in "${headings[@]}"; do
  found=$(printf '%s\n' "$text" | tail -n +$((line + 1)) | grep -n -x -F -m1 -- "$heading" || true)
  if [ -z "$found" ]; then
    echo "heading not found in order: $heading"
    exit 1
  fi
  line=$((line + ${found%%:*}))
done
echo "${#headings[@]} headings found in order"
