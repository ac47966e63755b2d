extern "C" unsigned tb_availability();
extern "C" unsigned ancla() {
    return tb_availability();
}
