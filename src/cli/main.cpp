// cli/main.cpp - terrafold-cli, the program without a window.
int main() {
    return 0;
}
