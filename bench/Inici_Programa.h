// The other process of the measure of the start.
#pragma once

// The program's own start, ended by the first painting of the login window.
int Arrencar_Fins_Al_Login(int argc, char** argv);
