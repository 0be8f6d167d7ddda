//==== flop.tdf ====
-- flop
-- lumenbox generated header file for use with tolvane when compiling thrid party tools output
include "flop".inc;

PARAMETERS 
(
	POWER = "LOW",
	WIDTH,
	clk_port_used = "UNUSED",
	d_port_used = "UNUSED",
	ena_port_used = "UNUSED",
	q_port_used = "UNUSED"
);
SUBDESIGN flop
( 
	clk	:	input;
	d[3..0]	:	input;
	ena	:	input;
	q[3..0]	:	output;
) VARIABLE 
	mg : lib_flop WITH (
		POWER = POWER, 
		WIDTH = WIDTH);
BEGIN 
	IF (USED(clk) & clk_port_used == "USED") GENERATE
		mg.clk = clk;
	END GENERATE;
	IF (USED(d) & d_port_used == "USED") GENERATE
		mg.d[WIDTH-1..0] = d[WIDTH-1..0];
	END GENERATE;
	IF (USED(ena) & ena_port_used == "USED") GENERATE
		mg.ena = ena;
	END GENERATE;
	IF (USED(q) & q_port_used == "USED") GENERATE
		q[WIDTH-1..0] = mg.q[WIDTH-1..0];
	END GENERATE;
END;//==== top.v ====
//top clk d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = flop 1 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	clk,
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   clk;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u_q;

	flop   u
	( 
	.clk(clk),
	.d(d),
	.q(wire_u_q)
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_off
	`endif
	,
	.ena(1'b1)
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_on
	`endif);
	defparam
		u.width = 4,
		u.clk_port_used = "used",
		u.d_port_used = "used",
		u.q_port_used = "used",
		u.lpm_type = "flop";
	assign
		q = wire_u_q;
endmodule //top
//VALID FILE
