#pragma once

/// Text, numbers and small conversions.
#include <zelplatform/util/base64.h>
#include <zelplatform/util/byte_words.h>
#include <zelplatform/util/cast.h>
#include <zelplatform/util/memory.h>
#include <zelplatform/util/numbers.h>
#include <zelplatform/util/text.h>
#include <zelplatform/util/time.h>
#include <zelplatform/util/type_name.h>
#include <zelplatform/util/unicode.h>
