#!/usr/bin/env bash
# Run by scripts/test-packages.sh on a machine that has nothing yet, in a folder with the packages, an older version of
# them, and the lines of the guide's first try.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive

say() { printf '\n== %s\n' "$1"; }
# expect TEXT COMMAND …: the command must succeed.
expect() {
  local text=$1
  shift
  "$@" > expect.log 2>&1 || {
    cat expect.log
    echo "not so: $text" >&2
    exit 1
  }
  echo "$text"
}
installs() { apt-get install -qy --no-install-recommends "$@" > apt.log 2>&1 || {
  cat apt.log
  exit 1
}; }

say "Install"
apt-get update -q > apt.log
installs ./old/velmora-server_*.deb
expect "the server needs no windows" bash -c '! dpkg-query -W "libqt6widgets*" 2> /dev/null'
expect "the service's user may open serial devices" bash -c 'id -nG velmora | grep -qw dialout'
expect "its configuration's folder is its own" test "$(stat -c %U /etc/velmora)" = velmora
for program in velmorad velmora-organiser velmora-files velmora-doctor velmora-cable; do
  expect "$program answers" "$program" --version
done
installs ./old/velmora_*.deb ./old/velmora-doc_*.deb
expect "velmora answers" velmora --version

say "The guide's first try"
mkdir try
printf 'Ada\t0171\r\n' > try/CONTACTS.txt
(
  cd try
  mapfile -t lines < ../lines
  eval "${lines[0]}"
  until [[ -e handheld ]]; do sleep 0.1; done
  eval "${lines[1]}"
  until grep -qs 'Waiting for link' ./*.log; do sleep 0.1; done
  eval "${lines[2]}"
  eval "${lines[3]}" > came-back
  expect "a file came back as it was saved" cmp CONTACTS.txt came-back
  kill %1 %2 2> /dev/null || true
)

say "The service"
command=$(sed -n 's/^ExecStart=//p' /usr/lib/systemd/system/velmorad.service)
install -d -o velmora -g velmora /var/lib/velmora /var/lib/velmora/psion
echo precious > /var/lib/velmora/psion/Memo.odb
runuser -u velmora -- env HOME=/var/lib/velmora XDG_CONFIG_HOME=/var/lib/velmora $command > service.log 2>&1 &
service=$!
until grep -q 'Wrote the default settings to /etc/velmora/Velmora.ini' service.log; do
  kill -0 "$service" || {
    cat service.log
    exit 1
  }
  sleep 0.1
done
kill "$service"
expect "it writes its configuration at its first start" test -s /etc/velmora/Velmora.ini

say "Upgrade"
echo '; mine' >> /etc/velmora/Velmora.ini
installs ./new/*.deb
expect "the new version is there" bash -c 'dpkg-query -W velmora-server | grep -qv 0.0.1'
expect "the configuration stays as it was" grep -q '^; mine' /etc/velmora/Velmora.ini

say "Remove and purge"
apt-get remove -qy velmora velmora-server velmora-doc > apt.log
expect "no program stays" bash -c '! ls /usr/bin/velmora*'
expect "the configuration stays" test -e /etc/velmora/Velmora.ini
apt-get purge -qy velmora-server > apt.log
expect "the configuration goes" test ! -e /etc/velmora
expect "the Organiser's files stay" grep -q precious /var/lib/velmora/psion/Memo.odb
expect "nothing else of it stays" bash -c '! find / -xdev -path "*velmora*" -not -path "/root/*" -not -path "/var/lib/velmora*" \
  -not -path "/proc/*" | grep .'
