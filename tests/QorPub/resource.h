#pragma once

#define IDR_SAMPLE 101
