# What the recipe of packaging/openwrt uses of OpenWrt's buildroot, and as little more as it takes to run the recipe's
# own steps: nothing is configured, compiled or packed. The caller sets TOPDIR, PKG_INSTALL_DIR, PKG_BUILD_DIR and
# ROOTS, the directory that the trees come to lie in.

INCLUDE_DIR := $(TOPDIR)/include
CP := cp -fpR
INSTALL_BIN := install -m0755
INSTALL_DATA := install -m0644
INSTALL_DIR := install -d -m0755
TAR := tar

all: dev prepare
