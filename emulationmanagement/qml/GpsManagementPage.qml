EmulationPage {}
