// The language server on standard input and output.
#pragma once

// Serves an editor until it says so or its end of the pipe closes. The host must have been started. Gives the
// exit status: 0 where the editor shut the server down, otherwise 1.
int serveEditor();
