#pragma once

/// Memory for key material, keys and key sets, certificates and private keys.
#include <zelplatform/crypto/alg.h>
#include <zelplatform/crypto/certificate_container.h>
#include <zelplatform/crypto/key.h>
#include <zelplatform/crypto/key_set.h>
#include <zelplatform/crypto/key_set_id.h>
#include <zelplatform/crypto/private_key.h>
#include <zelplatform/crypto/sec_buffer.h>
#include <zelplatform/crypto/x509.h>
