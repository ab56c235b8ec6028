#!/usr/bin/env bash
# Checks the layering of src/: a folder includes only folders below it, never one above or beside
# it, so the libraries have no cycles. Prints every include that breaks the rule; exits 1 if any.
set -euo pipefail
cd "$(dirname "$0")/../src"

# The rank of each folder, lowest first. A folder may include its own files and those of folders
# of a lower rank. The core never includes the UI nor the network library (net, HTTP for
# synchronisation); src/app wires everything and may include all.
declare -A rank=(
  [core/dates]=0 [core/text]=1 [core/settings]=2 [core/model]=4 [core/store]=5
  [core/library]=6 [core/security]=7 [core/scheduling]=8 [core/activity]=9
  [core/presentation]=10 [core/sync]=10 [core/monitor]=11 [core/backup]=12 [core/reports]=13 [core/app]=14
  [net]=15
  [ui/widgets]=20 [ui/desktop]=20 [ui/prompts]=21 [ui/authoring]=21 [ui/help]=21 [ui/reports]=21 [ui/main]=22
  [ui/preferences]=22 [ui/shell]=23
)

folder_of() { # "core/dates/Date.h" -> "core/dates"
  local path=$1
  echo "${path%/*}"
}

status=0
while IFS= read -r file; do
  from=$(folder_of "$file")
  [ "$from" = app ] && continue
  if [ -z "${rank[$from]+x}" ]; then
    echo "$file: folder $from has no place in the layering (add it to scripts/check-includes.sh)"
    status=1
    continue
  fi
  while IFS= read -r included; do
    to=$(folder_of "$included")
    [ "$to" = "$from" ] && continue
    if [ -z "${rank[$to]+x}" ]; then
      echo "$file: includes $included from unknown folder $to"
      status=1
    elif [[ $from == core/* && $to == ui/* ]]; then
      echo "$file: the core includes the UI ($included)"
      status=1
    elif [ "${rank[$to]}" -ge "${rank[$from]}" ]; then
      echo "$file: $from includes $included, which is not below it"
      status=1
    fi
  done < <(sed -n 's/^#include "\([^"]*\)".*/\1/p' "$file")
done < <(find core net ui -name '*.h' -o -name '*.cpp' | sort)

if [ $status -eq 0 ]; then
  echo "include layering: ok"
fi
exit $status
