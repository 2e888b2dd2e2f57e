# Each package has to describe itself, and its recipe fills a tree of its own.
define BuildPackage
$(foreach variable,SECTION CATEGORY TITLE,$(eval $(variable) :=))
$(eval $(Package/$(1)))
$(if $(and $(SECTION),$(CATEGORY),$(TITLE),$(Package/$(1)/description)),,$(error $(1) is not described))
all: $(1)
$(1):
	$(call Package/$(1)/install,$(ROOTS)/$(1))
endef

dev:
	$(call Build/InstallDev,$(ROOTS)/dev)

prepare:
	$(Build/Prepare)

print-%:
	@echo '$($*)'
