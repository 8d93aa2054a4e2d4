// Tells of a fault that would otherwise end the process without a word.
#pragma once

// From now on a fault that nobody handles, or an exception that nobody catches, is told on standard error
// with the module and the place in it, behind all that was printed before; the process then ends with
// status 5. Called on the thread of Lisp.
void reportCrashes();
