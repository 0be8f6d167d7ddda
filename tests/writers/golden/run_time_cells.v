//top N=6 d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = ram_block 1 tap_cell 2 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	f,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [1:0]  f;
	output   [7:0]  q;


	parameter	N = 6;


	wire  [7:0]   wire_u_ram_q;
	wire  [1:0]   wire_taps_a;
	wire  [1:0]   wire_taps_o;

	ram_block   u_ram
	( 
	.addr(d),
	.parity(),
	.q(wire_u_ram_q)
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_off
	`endif
	,
	.ce(1'b1),
	.mask({2{1'b0}}),
	.mode()
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_on
	`endif
	// synopsys translate_off
	,
	.probe(),
	.trace(1'b0)
	// synopsys translate_on
	);
	defparam
		u_ram.bits = 5'b00101,
		u_ram.depth = 4,
		u_ram.init = 12'h05A,
		u_ram.nwords = (N * 2),
		u_ram.speed = "Fast",
		u_ram.width = "8",
		u_ram.coef0 = 7,
		u_ram.coef3 = 9,
		u_ram.label1 = "Late",
		u_ram.latency = 2,
		u_ram.sim_file = "init.hex",
		u_ram.lpm_hint = "HINTED=3, A=1";
	tap_cell   taps_0
	( 
	.a(wire_taps_a[0:0]),
	.o(wire_taps_o[0:0]),
	.en(1'b1));
	defparam
		taps_0.Kind = "slow";
	tap_cell   taps_1
	( 
	.a(wire_taps_a[1:1]),
	.o(wire_taps_o[1:1]),
	.en(1'b1));
	defparam
		taps_1.Kind = "slow";
	assign
		wire_taps_a = d[1:0];
	assign
		f = wire_taps_o,
		q = wire_u_ram_q;
endmodule //top
//VALID FILE
