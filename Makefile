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

# Las pruebas de la base corren también sobre un PostgreSQL de usar y tirar;
# se detiene siempre, y el resultado es el de ctest.
test: compilar
	@pg=""; \
	if pg=$$($(CURDIR)/scripts/pg-prueba iniciar); then \
	  trap '$(CURDIR)/scripts/pg-prueba parar "'"$$pg"'"' EXIT; \
	  trap 'exit 130' INT TERM; \
	  export NOMIRA_PG_PRUEBA="$$(cat "$$pg/cadena")"; \
	else \
	  echo "[ AVISO ] PostgreSQL no disponible: las pruebas de la base corren sólo sobre SQLite"; \
	fi; \
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

clean:
	rm -rf $(BUILD)
