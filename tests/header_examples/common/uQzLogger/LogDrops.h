#pragma once

#include <iostream>
