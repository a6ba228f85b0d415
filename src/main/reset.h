// Falling back to the system partition, and marking abandoned update data.
#pragma once

// Points /var/db/timezone/zoneinfo at the system partition and removes the ICU links.
// Prints nothing of its own and throws whatever building or activating throws.
void reset_to_system_partition();

// Leaves /var/db/timezone/needs_cleanup; reports a failure and never throws.
void touch_needs_cleanup();
