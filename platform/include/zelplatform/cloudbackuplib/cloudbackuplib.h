#pragma once

/// Clients of cloud repositories.
#include <zelplatform/cloudbackuplib/cloud_repo_client_id.h>
