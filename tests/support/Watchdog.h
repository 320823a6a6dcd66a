#pragma once

/// Each test is guarded from its start to its end: one that hangs ends the program by abort, with a word on
/// standard error that tells its name and the calls that it hangs in. Nothing else is timed. One that ends
/// the program by exit has failed, whatever its status.

/// How long a test may take, in seconds: ORREVA_TEST_LIMIT of the environment, or less than the runner's own
/// limit.
unsigned TestLimit();
