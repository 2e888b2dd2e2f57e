# Shared by the scripts that take packages from the host's mirrors without the host's package lists.
# shellcheck shell=bash

# package_sources RELEASE: prints "URI SUITE COMPONENT" of the host's sources of that Debian release.
# shellcheck disable=SC2016 # apt expands the format
package_sources() {
    ! command -v apt-get >/dev/null ||
        apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
        grep -E " $1(-updates|-security)? " || true
}

# Prints the settings of apt for the way to the mirrors.
transport() {
    ! command -v apt-config >/dev/null || apt-config dump | grep -E '^Acquire::(http|https|Retries|ForceIPv[46])\b' || true
}
