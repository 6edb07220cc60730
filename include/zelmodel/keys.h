#pragma once

/// Keys and small records that the agent exchanges with the managing server: the model's copy of a key set
/// (SCryptoKey), the key bundles with their binary and base64 forms, the server's own record, a certificate with its
/// key, a typed value and an option key. Key bytes stay in the platform's secure memory, which is erased when it is
/// released; a bundle's base64 text is the caller's to protect.

#include <zelmodel/enums/crypto_alg.h>
#include <zelmodel/enums/crypto_key_type.h>
#include <zelmodel/structs/certificate.h>
#include <zelmodel/structs/crypto/backup_keys.h>
#include <zelmodel/structs/crypto/crypto_key.h>
#include <zelmodel/structs/entity_option_key.h>
#include <zelmodel/structs/qor_server.h>
#include <zelmodel/structs/sql_variant.h>
