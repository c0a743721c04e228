#!/usr/bin/env bash
# Tries the installer under Wine, on a Windows made for it: installs, upgrades over an older version, refuses
# while a program runs, and uninstalls, and looks each time at what is there and what is not.
#   scripts/test-installer-windows.sh [BUILD-FOLDER]      after "cmake --build BUILD-FOLDER --target package"
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build-windows}")
setup=$build/Velmora-setup.exe
archive=$(ls -t "$build"/Velmora-*-windows-x86_64.zip | head -1)
version=$(sed -nE 's/^set\(CPACK_PACKAGE_VERSION "(.*)"\)$/\1/p' "$build/CPackConfig.cmake")

work=$(mktemp -d)
export WINEPREFIX=$work/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe='
running=
finish() {
  [[ -z $running ]] || kill "$running" 2> /dev/null || true
  wineserver -k 2> /dev/null || true
  wineserver -w 2> /dev/null || true
  rm -rf "$work"
}
trap finish EXIT

failures=0
# check WHAT COMMAND …: counts and names what is not as it should be.
check() {
  local what=$1
  shift
  if "$@" > "$work/output" 2>&1; then
    echo "ok      $what"
  else
    echo "FAILED  $what"
    sed 's/^/          /' "$work/output"
    failures=$((failures + 1))
  fi
}
absent() { [[ ! -e $1 ]]; }
# An uninstaller has a copy of itself remove it in the end; the server ends with the last program.
run() {
  local status=0
  timeout 120 wine "$@" < /dev/null > /dev/null 2>&1 || status=$?
  timeout 120 wineserver -w
  return $status
}
exits_with() {
  local expected=$1 status=0
  shift
  timeout 120 wine "$@" < /dev/null || status=$?
  echo "status $status, expected $expected"
  [[ $status == "$expected" ]]
}
registry() { wine reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Velmora' "$@"; }
registered() { registry /v "$1" | tr -d '\r' | grep -F -- "$2"; }
not_registered() { ! registry; }
# The files below a folder, as one text.
files_of() { (cd "$1" && find . -type f | sort); }
holds_exactly() { diff <(printf '%s\n' "$2") <(files_of "$1"); }
prints() {
  local expected=$1
  shift
  timeout 60 wine "$@" < /dev/null 2>&1 | tr -d '\r' | tee /dev/stderr | grep -qF -- "$expected"
}

wineboot -i > /dev/null 2>&1
wine winecfg /v win7 > /dev/null 2>&1
check 'the installer refuses an older Windows than 10' exits_with 2 "$setup" /S
wine winecfg /v win10 > /dev/null 2>&1
wineserver -w
user=$(wine cmd /c 'echo %LOCALAPPDATA%' 2> /dev/null | tr -d '\r')
roaming=$(wine cmd /c 'echo %APPDATA%' 2> /dev/null | tr -d '\r')
folder=$(winepath -u "$user")/Programs/Velmora
menu="$(winepath -u "$roaming")/Microsoft/Windows/Start Menu/Programs/Velmora"
startup="$(winepath -u "$roaming")/Microsoft/Windows/Start Menu/Programs/StartUp"
desk=$WINEPREFIX/drive_c/users/$(basename "$(winepath -u "$(wine cmd /c 'echo %USERPROFILE%' 2> /dev/null | tr -d '\r')")")/Desktop
settings=$(winepath -u "$roaming")/Velmora.ini
windows_folder="$user\\Programs\\Velmora"
cp "$setup" "$work/setup.exe"

# What must be installed is what the archive has, and the uninstaller.
mkdir "$work/archive"
cmake -E chdir "$work/archive" cmake -E tar xf "$archive"
top=$work/archive/$(basename "$archive" .zip)
check 'the archive has one folder, named like itself' [ "$(ls "$work/archive")" = "$(basename "$top")" ]
expected=$( (files_of "$top"; echo ./velmora-uninstall.exe) | sort)
desktop=
[[ ! -e $top/velmora.exe ]] || desktop=yes

echo '-- An older version, with a file that the new one does not have'
mkdir "$work/older"
echo 'of the older version' > "$work/older/left-over.txt"
check 'an older installer is made' cpack -G NSIS --config "$build/CPackConfig.cmake" -B "$work/packed" \
  -D CPACK_PACKAGE_VERSION=0.0.1 -D "CPACK_INSTALLED_DIRECTORIES=$work/older;."
check 'the older installer ends well' run "$work/packed/Velmora-setup.exe" /S
check 'it brings its files' [ -e "$folder/left-over.txt" ]
check 'it registers its version' registered DisplayVersion 0.0.1
echo 'Port=7' > "$settings"
echo 'mine' > "$folder/notes.txt"
echo 'mine' > "$folder/docs/notes.txt"
mine=$'./docs/notes.txt\n./notes.txt'

echo '-- While a program runs'
mkfifo "$work/never"
env -C "$work" wine "$folder/velmora-files.exe" data - out.odb --from odb < "$work/never" > /dev/null 2>&1 &
running=$!
exec 9> "$work/never"
check 'the installer refuses' exits_with 3 "$work/setup.exe" /S
check 'nothing was installed' registered DisplayVersion 0.0.1
check 'nothing was removed' [ -e "$folder/left-over.txt" ]
check 'the uninstaller refuses' exits_with 3 "$folder/velmora-uninstall.exe" /S
check 'all files are still there' [ -e "$folder/left-over.txt" -a -e "$folder/docs/user-guide.html" ]
kill "$running"
exec 9>&-
wait "$running" || true
running=
wineserver -w

echo '-- The new version over it'
check 'the installer ends well' run "$work/setup.exe" /S
check 'the files are those of the archive, and the user'\''s own' \
  holds_exactly "$folder" "$(printf '%s\n' "$expected" "$mine" | sort)"
check 'the version' registered DisplayVersion "$version"
check 'the name' registered DisplayName Velmora
check 'the publisher' registered Publisher Quillbrook
check 'the folder' registered InstallLocation "$windows_folder"
check 'the icon' registered DisplayIcon "$windows_folder\\"
check 'the silent uninstaller' registered QuietUninstallString "\"$windows_folder\\velmora-uninstall.exe\" /S"
kilobytes=$(($(registry /v EstimatedSize | tr -d '\r' | sed -nE 's/.*REG_DWORD *//p')))
stored=$(du -sk --apparent-size "$top" | cut -f 1)
check "the size, $kilobytes KB, is about that of the files, $stored KB" \
  [ $((kilobytes * 10)) -ge $((stored * 8)) -a $((kilobytes * 8)) -le $((stored * 10)) ]
check 'the link to the user guide' [ -e "$menu/User guide.lnk" ]
check 'the link to the uninstaller' [ -e "$menu/Uninstall Velmora.lnk" ]
if [[ -n $desktop ]]; then
  check 'the link to Velmora' [ -e "$menu/Velmora.lnk" ]
  check 'the link to the Organiser'\''s files' [ -e "$menu/Psion Files.lnk" ]
fi
check 'nothing starts with Windows that was not chosen' absent "$startup/Velmora.lnk"
check 'nothing is on the desktop that was not chosen' absent "$desk/Velmora.lnk"
for program in "$folder"/velmora*.exe; do
  check "$(basename "$program") holds no symbols" [ -z "$(x86_64-w64-mingw32-nm "$program" 2> /dev/null)" ]
done
check 'velmora-files runs from there' prints 'velmora-files' "$folder/velmora-files.exe" --help
check 'velmora-organiser runs from there' prints 'velmora-organiser' "$folder/velmora-organiser.exe" --help
[[ -z $desktop ]] || check 'the licences of the toolkit'\''s parts' grep -q '^FreeType\|^Freetype' "$folder/licences/toolkit-parts.txt"
[[ -z $desktop ]] || check 'where its source is' grep -q "Velmora-$version-windows-source.tar" "$folder/licences/third-party.txt"
[[ -z $desktop ]] || check 'velmorad runs from there' prints "velmorad $version" "$folder/velmorad.exe" --version

if [[ -n $desktop ]]; then
  echo '-- The server as a task'
  task="$WINEPREFIX/drive_c/windows/system32/tasks/Velmora"
  check 'velmorad makes its task' exits_with 0 "$folder/velmorad.exe" --port COM5 --wait --install-task
  wineserver -w
  # Wine forgets what the task starts; the unit tests look at that.
  check 'which says what it is' bash -c 'tr -d "\0" < "$1" | grep -qF "Psion Organiser"' - "$task"
  check 'and removes it' exits_with 0 "$folder/velmorad.exe" --remove-task
  check 'the task is gone' absent "$task"
  check 'a second time there is none to remove' exits_with 1 "$folder/velmorad.exe" --remove-task
  check 'it is made again' exits_with 0 "$folder/velmorad.exe" --install-task
  wineserver -w
fi

echo '-- The same once more, with links that were chosen before'
echo 'of the older version' > "$startup/Velmora.lnk"
check 'the installer ends well' run "$work/setup.exe" /S
if [[ -n $desktop ]]; then
  check 'the chosen link is made anew' bash -c '! grep -q older "$1"' - "$startup/Velmora.lnk"
fi
check 'and no other' absent "$desk/Velmora.lnk"
[[ -z $desktop ]] || check 'the task stays' [ -e "$task" ]
check 'the files are the same' holds_exactly "$folder" "$(printf '%s\n' "$expected" "$mine" | sort)"

echo '-- Into another folder'
other="$WINEPREFIX/drive_c/An other place"
# In words, for a word with blanks would come with quotes, which the installer does not take.
to_other=('/D=C:\An' other place)
check 'the installer ends well' run "$work/setup.exe" /S "${to_other[@]}"
check 'the files are in the new folder' holds_exactly "$other" "$expected"
check 'and no longer in the old one, where the user'\''s own stay' holds_exactly "$folder" "$mine"
check 'the new folder is registered' registered InstallLocation 'C:\An other place'
echo 'mine' > "$other/notes.txt"
check 'an upgrade without a folder goes there, too' run "$work/setup.exe" /S
check 'with all its files' holds_exactly "$other" "$(printf '%s\n' "$expected" ./notes.txt | sort)"
check 'and not to the usual folder' holds_exactly "$folder" "$mine"

echo '-- Uninstalling'
check 'the uninstaller ends well' run "$other/velmora-uninstall.exe" /S
check 'only the user'\''s own files are left' holds_exactly "$other" ./notes.txt
check 'nothing is registered' not_registered
check 'the start menu is as before' absent "$menu"
check 'nothing starts with Windows' absent "$startup/Velmora.lnk"
[[ -z $desktop ]] || check 'and no task' absent "$task"
check 'the settings stay' grep -q 'Port=7' "$settings"
rm "$other/notes.txt"
check 'the installer ends well' run "$work/setup.exe" /S "${to_other[@]}"
check 'the uninstaller ends well' run "$other/velmora-uninstall.exe" /S
check 'a folder with nothing of the user'\''s goes' absent "$other"

echo '-- Into a folder with files of the user'\''s'
documents="$WINEPREFIX/drive_c/Documents"
mkdir "$documents"
echo 'mine' > "$documents/LICENSE.txt"
check 'the installer ends well' run "$work/setup.exe" /S '/D=C:\Documents'
check 'it makes a folder of its own there' holds_exactly "$documents/Velmora" "$expected"
check 'the user'\''s file is as before' grep -qx mine "$documents/LICENSE.txt"
check 'the uninstaller ends well' run "$documents/Velmora/velmora-uninstall.exe" /S
check 'that folder is gone again, and the user'\''s file is not' holds_exactly "$documents" ./LICENSE.txt

if ((failures > 0)); then
  echo "$failures checks failed."
  exit 1
fi
echo 'The installer: all checks passed.'
