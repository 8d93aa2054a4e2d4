#pragma once

// Whether this system is Wine, which shows the files of the system below.
bool isUnderWine();
