#pragma once

// Registers every control record with the meta-type system under its own name, so that the
// records travel through queued signals and queued invocations by name. Idempotent.
void registerControlMetaTypes();
