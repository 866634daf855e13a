# Las dos órdenes de siempre: "make run" y "make test".
BUILD ?= build
JOBS  ?= $(shell nproc)

.PHONY: run test compilar dependencias clean

dependencias:
	@./scripts/instalar-dependencias

compilar: dependencias
	@cmake -S . -B $(BUILD) -DNOMIRA_WERROR=ON >/dev/null
	@cmake --build $(BUILD) -j $(JOBS)

run: compilar
	@./scripts/iniciar $(BUILD)

test: compilar
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

clean:
	rm -rf $(BUILD)
