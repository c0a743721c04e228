#!/usr/bin/env bash
# Shows that the simulation can find what it looks for: puts known faults into a copy of the server, one by one,
# and tells how soon the simulation finds each: scripts/simulate-faults.sh [SEED]
# Nothing in the tree is changed; the copy and its build are in build-faults/.
set -euo pipefail
cd "$(dirname "$0")/.."
seed=${1:-1}
limit=60 # seconds for each fault
copy=build-faults/tree

rm -rf "$copy"
mkdir -p "$copy"
git ls-files -z | tar --null --files-from=- --create | tar --extract --directory "$copy"
cd "$copy"

build() {
  scripts/build.sh ../release -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" \
    -DVELMORA_TOOLKIT=OFF -DBUILD_TESTING=ON -- velmora-simulate > ../build.log 2>&1 || {
    tail -40 ../build.log
    exit 1
  }
}

missed=0
# fault TEXT FILE EXPRESSION: one fault, made by a sed expression that must change the file.
fault() {
  local text=$1 file=$2 expression=$3
  cp "$file" ../original
  sed -i "$expression" "$file"
  if cmp -s "$file" ../original; then
    echo "$text: the code to change is not there any more"
    exit 1
  fi
  build
  if timeout $((limit * 4)) ../release/tests/velmora-simulate --seed "$seed" --seconds "$limit" > ../found.log; then
    echo "$text: NOT FOUND in $limit seconds"
    missed=$((missed + 1))
  else
    echo "$text: seed $(sed -n 's/^seed \([0-9]*\): .*/\1/p' ../found.log), $(sed -n 's/^seed [0-9]*: //p' ../found.log)"
  fi
  cp ../original "$file"
  touch "$file"
}

# closing TEXT: leaves out a line of the function that closes a file.
closing() { echo "/^void OpenFile::close/,/^}/{/$1/d}"; }

fault "a block file's header is kept for the next file" src/services/open_file.cpp "$(closing 'header_ = Header::Settled')"
fault "text mode is kept for the next file" src/services/open_file.cpp "$(closing 'writesText_ = false')"
fault "the procedure image is kept for the next file" src/services/open_file.cpp "$(closing 'procedureImage_ = false')"
fault "the field separator is kept for the next file" src/services/ftran_service.cpp \
  "/^void FtranService::open/,/^}/{/setFieldSeparator/d}"
fault "the end of a sheet is kept for the next sheet" src/services/plan_service.cpp \
  "/^void PlanService::reset/,/^}/{/sheetDone_ = false/d}"
fault "a worksheet's cells must be in order" src/spreadsheet/wks_reader.cpp \
  's/last = {std::max(last.row, at.row), std::max(last.column, at.column)};/last = at;/'
fault "one repeat too few" src/link/plp.h 's/kMaxResends = 4/kMaxResends = 3/'
fault "a saved file is not flushed" src/services/open_file.cpp "/^ServiceCode OpenFile::save/,/^}/{/file_->flush();/d}"
fault "a file that was taken away counts as saved" src/services/open_file.cpp 's/if (!file_->isInPlace())/if (false)/'
fault "no earlier copy is kept" src/services/open_file.cpp 's/writesOver(mode, kind) ? copies_.keep(target) : std::string()/std::string()/'

cd ../..
if ((missed > 0)); then
  echo "$missed faults were not found"
  exit 1
fi
echo "every fault was found"
