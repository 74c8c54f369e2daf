# shellcheck shell=bash
# Sourced by the trials: a Debian with nothing in it but what every Debian has, in a folder.

bare_cache="${XDG_CACHE_HOME:-$HOME/.cache}"

# quietly COMMAND...: shows the command's words only where it fails, which ends the script.
quietly() {
  local log
  log="$(mktemp)"
  if ! "$@" >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    fail "the trial could not get ready: $* failed."
  fi
  rm -f "$log"
}

# inside FOLDER COMMAND...: runs a command in the system of that folder, as its root.
inside() {
  local system="$1"
  shift
  chroot "$system" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"
}

fetch_bare_debian() {
  local system="$1" mirror
  # shellcheck disable=SC2016  # words for apt-get
  mirror="$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' 'Codename: bookworm' |
    head -n 1)"
  [[ -n $mirror ]] || fail "this machine's apt names no source of Debian 12, of which the trial is made."
  echo "Fetching a bare Debian"
  quietly debootstrap --variant=minbase bookworm "$system" "$mirror"
  # What is written here needn't outlive a power cut.
  echo force-unsafe-io >"$system/etc/dpkg/dpkg.cfg.d/trial"
}

# make_bare_debian FOLDER: unpacks the system into an empty folder. It is fetched once; the packages
# that are installed in it stay in a cache as well.
make_bare_debian() {
  local system="$1" archive="$bare_cache/awizo-bare-debian.tar" fetched
  ((EUID == 0)) || fail "only root can make a system in a folder: call it as root."
  mkdir -p "$bare_cache/awizo-bare-debian-packages"
  if [[ ! -f $archive ]]; then
    fetched="$(mktemp -d)"
    fetch_bare_debian "$fetched"
    tar -C "$fetched" -cf "$archive.new" .
    mv "$archive.new" "$archive"
    rm -rf "$fetched"
  fi
  tar -C "$system" -xf "$archive"
  chmod 755 "$system"
  cp /etc/resolv.conf "$system/etc/resolv.conf"
  echo "127.0.0.1 localhost $(uname --nodename)" >"$system/etc/hosts"
  # A mount of its own, so that all that is mounted below goes with it.
  mount --bind "$system" "$system"
  mount -t proc proc "$system/proc"
  mount --bind "$bare_cache/awizo-bare-debian-packages" "$system/var/cache/apt/archives"
}

# drop_bare_debian FOLDER
drop_bare_debian() {
  umount --recursive "$1" 2>/dev/null || umount --recursive --lazy "$1" 2>/dev/null || true
  rm -rf --one-file-system "$1"
}
