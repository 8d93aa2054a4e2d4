// Counts the objects that the test program and the code linked into it have made and not deleted.
#pragma once

long liveObjects();
